<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context><name>Scrivel</name>
<message><source>Install %@</source><translation>%@をインストール</translation></message>
<message><source>Extracting %@…</source><translation>%@を展開中…</translation></message>
<message><source>Installing %@ to the Applications folder…</source><translation>%@を「アプリケーション」フォルダにインストール中…</translation></message>
<message><source>Launching %@ for the first time…</source><translation>%@を初めて起動中…</translation></message>
<message><source>Canceling…</source><translation>キャンセル中…</translation></message>
<message><source>Cancel</source><translation>キャンセル</translation></message>
<message><source>Unable to retreived required files for %@ installation.</source><translation>%@のインストールに必要なファイルを取得できませんでした。</translation></message>
<message><source>Please try again later.</source><translation>あとでもう一度お試しください。</translation></message>
<message><source>OK</source><translation>OK</translation></message>
<message><source>Scrivel and Microsoft Word cannot be open during %@ installation.</source><translation>%@のインストール中は、ScrivelとMicrosoft Wordを開いておくことはできません。</translation></message>
<message><source>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</source><translation>ScrivelとMicrosoft Wordを終了し、［OK］ボタンをクリックして続けてください。このインストーラを終了する場合は、［インストーラを終了］ボタンをクリックしてください。</translation></message>
<message><source>Quit Installer</source><translation>インストーラを終了</translation></message>
<message><source>Would you like to overwrite the %@ at /Applications/%@?</source><translation>%@（/Applications/%@）を上書きしますか？</translation></message>
<message><source>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</source><translation>%@ バージョン%@をインストールしようとしていますが、バージョン%@がすでにインストールされています。この操作は取り消せません。</translation></message>
<message><source>No</source><translation>いいえ</translation></message>
<message><source>Yes</source><translation>はい</translation></message>
<message><source>Ready to install.</source><translation>インストールの準備ができました。</translation></message>
<message><source>Install</source><translation>インストール</translation></message>
<message><source>Installation progress</source><translation>インストールの進行状況</translation></message>
<message><source>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</source><translation>Scrivel 21をこのコンピュータの「アプリケーション」フォルダにインストールし、準備ができたら開きます。</translation></message>
<message><source>%@ KB of %@ KB</source><translation>%@ KB / %@ KB</translation></message>
<message><source>%@ MB of %@ MB</source><translation>%@ MB / %@ MB</translation></message>
<message><source>%@ GB of %@ GB</source><translation>%@ GB / %@ GB</translation></message>
<message><source>The installer of %@ needs administrator rights.</source><translation>%@のインストーラには管理者権限が必要です。</translation></message>
<message><source>Password:</source><translation>パスワード：</translation></message>
<message><source>Welcome</source><translation>ようこそ</translation></message>
<message><source>Read Me</source><translation>お読みください</translation></message>
<message><source>License</source><translation>使用許諾</translation></message>
<message><source>Customization</source><translation>カスタマイズ</translation></message>
<message><source>Updating System</source><translation>システムのアップデート</translation></message>
<message><source>Summary</source><translation>概要</translation></message>
<message><source>Finding Scrivel</source><translation>Scrivelの検索</translation></message>
<message><source>Found Scrivel</source><translation>見つかったScrivel</translation></message>
<message><source>Welcome to Scrivel 21</source><translation>Scrivel 21へようこそ</translation></message>
<message><source>End User License Agreement</source><translation>エンドユーザ使用許諾契約</translation></message>
<message><source>Select Components</source><translation>コンポーネントの選択</translation></message>
<message><source>Thank you for using Scrivel 21</source><translation>Scrivel 21をご利用いただきありがとうございます</translation></message>
<message><source>Finish</source><translation>完了</translation></message>
<message><source>Uninstall Scrivel 21</source><translation>Scrivel 21をアンインストール</translation></message>
<message><source>Welcome to Scrivel 21 Update</source><translation>Scrivel 21アップデートへようこそ</translation></message>
<message><source>Penmark for Microsoft Word</source><translation>Penmark for Microsoft Word</translation></message>
<message><source>Scrivel Penmark Configuration</source><translation>Scrivel Penmarkの設定</translation></message>
<message><source>Welcome to Scrivel Penmark</source><translation>Scrivel Penmarkへようこそ</translation></message>
<message><source>Continue</source><translation>続ける</translation></message>
<message><source>Next</source><translation>次へ</translation></message>
<message><source>Done</source><translation>完了</translation></message>
<message><source>Exit</source><translation>終了</translation></message>
<message><source>Retry</source><translation>再試行</translation></message>
<message><source>Scrivel 21 Installer</source><translation>Scrivel 21インストーラ</translation></message>
<message><source>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</source><translation>アンインストールすると、Scrivel Penmarkがこのコンピュータから削除されます。続けてもよろしいですか？</translation></message>
<message><source>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</source><translation>アンインストールすると、Scrivelの外部コンポーネントがすべてこのコンピュータから削除されます。続けてもよろしいですか？</translation></message>
<message><source>Back</source><translation>戻る</translation></message>
<message><source>%@ Customizer</source><translation>%@カスタマイザ</translation></message>
<message><source>%@ was removed.</source><translation>「%@」を削除しました。</translation></message>
<message><source>%@ could not be removed.</source><translation>「%@」を削除できませんでした。</translation></message>
<message><source>%@ was installed.</source><translation>「%@」をインストールしました。</translation></message>
<message><source>%@ could not be installed.</source><translation>「%@」をインストールできませんでした。</translation></message>
<message><source>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</source><translation>このインストーラには文書「%@」が含まれていません。お読みになるには、完全なインストーラを入手してください。</translation></message>
<message><source>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</source><translation>このインストーラにはコンポーネントの一覧が含まれていません。コンポーネントを選択するには、完全なインストーラを入手してください。</translation></message>
<message><source>Help</source><translation>ヘルプ</translation></message>
<message><source>Install Log</source><translation>インストールログ</translation></message>
<message><source>The install log is empty.</source><translation>インストールログは空です。</translation></message>
<message><source>Nothing was changed.</source><translation>何も変更されませんでした。</translation></message>
<message><source>Steps</source><translation>手順</translation></message>
<message><source>Looking at what is installed on this computer…</source><translation>このコンピュータにインストールされているものを確認中…</translation></message>
<message><source>Search progress</source><translation>検索の進行状況</translation></message>
<message><source>This can take a moment.</source><translation>しばらく時間がかかることがあります。</translation></message>
<message><source>Please read the license agreement. To continue, you need to agree to it.</source><translation>使用許諾契約をお読みください。続けるには、契約に同意する必要があります。</translation></message>
<message><source>License agreement</source><translation>使用許諾契約</translation></message>
<message><source>Answer to the license agreement</source><translation>使用許諾契約への回答</translation></message>
<message><source>Agree</source><translation>同意する</translation></message>
<message><source>Disagree</source><translation>同意しない</translation></message>
<message><source>Select the components that you want to use. Cleared components are removed.</source><translation>使用するコンポーネントを選択してください。選択を解除したコンポーネントは削除されます。</translation></message>
<message><source>Components</source><translation>コンポーネント</translation></message>
<message><source>Component</source><translation>コンポーネント</translation></message>
<message><source>Installed</source><translation>インストール済み</translation></message>
<message><source>Description</source><translation>説明</translation></message>
<message><source>Uninstall…</source><translation>アンインストール…</translation></message>
<message><source>Removes all components from this computer</source><translation>このコンピュータからすべてのコンポーネントを削除します</translation></message>
<message><source>This is the result of the installation. The log holds every step.</source><translation>インストールの結果は次のとおりです。すべての手順はログに記録されています。</translation></message>
<message><source>Result of the installation</source><translation>インストールの結果</translation></message>
<message><source>This is the result for the components that you selected. The log holds every step.</source><translation>選択したコンポーネントの結果は次のとおりです。すべての手順はログに記録されています。</translation></message>
<message><source>Result of the change</source><translation>変更の結果</translation></message>
<message><source>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</source><translation>Scrivel 21のフォルダの外にあるコンポーネント（Microsoft Word用のPenmarkアドイン、Spotlightインポータ、サービス、ブラウザ機能拡張）が、すべてこのコンピュータから削除されます。</translation></message>
<message><source>Your libraries and documents stay where they are.</source><translation>お使いのライブラリと書類は現在の場所に残ります。</translation></message>
<message><source>Update progress</source><translation>アップデートの進行状況</translation></message>
<message><source>Please leave the computer switched on and do not quit the installer until this is finished.</source><translation>完了するまで、コンピュータの電源を切ったり、インストーラを終了したりしないでください。</translation></message>
<message><source>This is the result of the uninstallation. The log holds every step.</source><translation>アンインストールの結果は次のとおりです。すべての手順はログに記録されています。</translation></message>
<message><source>Result of the uninstallation</source><translation>アンインストールの結果</translation></message>
<message><source>Quit Microsoft Word, then click Retry.</source><translation>Microsoft Wordを終了してから、［再試行］をクリックしてください。</translation></message>
<message><source>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</source><translation>Microsoft Wordが開いています。アドインを変更できるのは、Wordが終了しているときだけです。Wordを終了する前に、Wordの書類を保存してください。</translation></message>
<message><source>Spotlight and Services</source><translation>Spotlightとサービス</translation></message>
<message><source>Choose who can use the components that you have just selected.</source><translation>選択したコンポーネントを使用できるユーザを選択してください。</translation></message>
<message><source>Spotlight: find your Scrivel documents with the search of the system</source><translation>Spotlight：システムの検索機能でScrivelの書類を見つけます</translation></message>
<message><source>Who can use the Spotlight importer</source><translation>Spotlightインポータを使用できるユーザ</translation></message>
<message><source>Only for me</source><translation>自分のみ</translation></message>
<message><source>Goes into the Library folder of your home folder.</source><translation>ホームフォルダ内の「ライブラリ」フォルダにインストールされます。</translation></message>
<message><source>For all users of this computer</source><translation>このコンピュータのすべてのユーザ</translation></message>
<message><source>Goes into the computer’s Library folder. An administrator password may be asked for.</source><translation>コンピュータの「ライブラリ」フォルダにインストールされます。管理者のパスワードを求められることがあります。</translation></message>
<message><source>Services: use Scrivel from the Services menu of other applications</source><translation>サービス：ほかのアプリケーションの「サービス」メニューからScrivelを使用します</translation></message>
<message><source>Who can use the Services</source><translation>サービスを使用できるユーザ</translation></message>
<message><source>This is the result of the update, copy by copy. The log holds every step.</source><translation>コピーごとのアップデートの結果は次のとおりです。すべての手順はログに記録されています。</translation></message>
<message><source>Result of the update</source><translation>アップデートの結果</translation></message>
<message><source>There is no copy of Scrivel 21 that this update fits.</source><translation>このアップデートを適用できるScrivel 21のコピーはありません。</translation></message>
<message><source>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</source><translation>このコンピュータでは何も変更されませんでした。すでに最新のコピーや、改変されたコピーは表示されません。確認したすべてのコピーはログに記録されています。</translation></message>
<message><source>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</source><translation>アドインは各コピーのスタートアップフォルダにインストールされ、次にWordを開いたときに読み込まれます。</translation></message>
<message><source>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</source><translation>PenmarkアドインをインストールするMicrosoft Wordのコピーは次のとおりです。不足しているコピーを追加したり、コピーのスタートアップフォルダを変更したりできます。</translation></message>
<message><source>Copies of Microsoft Word</source><translation>Microsoft Wordのコピー</translation></message>
<message><source>Word</source><translation>Word</translation></message>
<message><source>Startup Folder</source><translation>スタートアップフォルダ</translation></message>
<message><source>Version</source><translation>バージョン</translation></message>
<message><source>Adds a copy of Word and its startup folder</source><translation>Wordのコピーとそのスタートアップフォルダを追加します</translation></message>
<message><source>Add</source><translation>追加</translation></message>
<message><source>Removes the add-in from the selected folder and forgets the folder</source><translation>選択したフォルダからアドインを削除し、フォルダの登録を解除します</translation></message>
<message><source>Remove</source><translation>削除</translation></message>
<message><source>Change…</source><translation>変更…</translation></message>
<message><source>Chooses another startup folder for the selected copy</source><translation>選択したコピーに別のスタートアップフォルダを選択します</translation></message>
<message><source>Reset</source><translation>リセット</translation></message>
<message><source>Forgets the folder that you chose for the selected copy</source><translation>選択したコピーに指定したフォルダを取り消します</translation></message>
<message><source>Select your Microsoft Word startup folder</source><translation>Microsoft Wordのスタートアップフォルダを選択してください</translation></message>
<message><source>Please locate your installed copy of Microsoft Word</source><translation>インストールされているMicrosoft Wordを選択してください</translation></message>
<message><source>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</source><translation>Wordで別のスタートアップフォルダを使うように設定している場合、または英語版以外のWordを使っている場合は、［設定］をクリックしてスタートアップフォルダの場所を設定してください。</translation></message>
<message><source>Set</source><translation>設定</translation></message>
<message><source>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</source><translation>選択した項目は、Microsoft Wordのインストールフォルダにないようです。もう一度選択してください。</translation></message>
<message><source>Uninstall Penmark components from the selected folder, immediately?</source><translation>選択したフォルダからPenmarkコンポーネントを今すぐアンインストールしますか？</translation></message>
<message><source>Uninstall</source><translation>アンインストール</translation></message>
<message><source>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</source><translation>%@：このコンピュータにMicrosoft Word 2016または2019は見つかりませんでした。</translation></message>
<message><source>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@：このコンピュータにあるMicrosoft Word 2016または2019に、Penmarkアドインをインストールします。</translation></message>
<message><source>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@：このコンピュータにある%d個のMicrosoft Word 2016または2019に、Penmarkアドインをインストールします。</translation></message>
<message><source>Word Locations…</source><translation>Wordの場所…</translation></message>
<message><source>Shows where each copy of Word gets the add-in, and lets you add or change a place</source><translation>各Wordのアドインの場所を表示し、場所を追加または変更できます</translation></message>
<message><source>Goes back to the components</source><translation>コンポーネントの選択に戻ります</translation></message>
<message><source>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</source><translation>Penmarkは、Microsoft Word用のScrivelアドインです。文章を書きながら、ライブラリから引用を挿入し、選択したスタイルで参考文献リストを作成します。</translation></message>
<message><source>What to do with Penmark</source><translation>Penmarkに対する操作</translation></message>
<message><source>Install Penmark</source><translation>Penmarkをインストール</translation></message>
<message><source>Puts the add-in into the startup folder of every copy of Word on this computer.</source><translation>このコンピュータにあるすべてのWordのスタートアップフォルダにアドインをインストールします。</translation></message>
<message><source>Uninstall Penmark</source><translation>Penmarkをアンインストール</translation></message>
<message><source>Removes the add-in from Word. Your documents and their citations stay as they are.</source><translation>Wordからアドインを削除します。書類とその中の引用はそのまま残ります。</translation></message>
<message><source>Quit Microsoft Word before you continue.</source><translation>続ける前にMicrosoft Wordを終了してください。</translation></message>
<message><source>This is the result for Scrivel Penmark. The log holds every step.</source><translation>Scrivel Penmarkの結果は次のとおりです。すべての手順はログに記録されています。</translation></message>
<message><source>Result for Scrivel Penmark</source><translation>Scrivel Penmarkの結果</translation></message>
<message><source>This is the result of removing Scrivel Penmark. The log holds every step.</source><translation>Scrivel Penmarkの削除の結果は次のとおりです。すべての手順はログに記録されています。</translation></message>
<message><source>Result of removing Scrivel Penmark</source><translation>Scrivel Penmarkの削除の結果</translation></message>
<message><source>Show Log</source><translation>ログを表示</translation></message>
<message><source>Installer</source><translation>インストーラ</translation></message>
<message><source>Customize…</source><translation>カスタマイズ…</translation></message>
<message><source>Install Penmark…</source><translation>Penmarkをインストール…</translation></message>
<message><source>Update Installed Copies…</source><translation>インストール済みのコピーをアップデート…</translation></message>
<message><source>Microsoft Word integration</source><translation>Microsoft Wordとの連携</translation></message>
<message><source>Work with your references while you write</source><translation>文章を書きながら文献を利用できます</translation></message>
<message><source>Penmark add-in</source><translation>Penmarkアドイン</translation></message>
<message><source>Penmark for Microsoft Word: citations and bibliographies in your documents</source><translation>Penmark for Microsoft Word：書類に引用と参考文献リストを追加します</translation></message>
<message><source>Content categories</source><translation>コンテンツカテゴリ</translation></message>
<message><source>Import filters for databases and library catalogues, by subject</source><translation>データベースや図書館目録用の読み込みフィルタ（分野別）</translation></message>
<message><source>Chemistry</source><translation>化学</translation></message>
<message><source>Import filters for chemistry</source><translation>化学用の読み込みフィルタ</translation></message>
<message><source>Economics</source><translation>経済学</translation></message>
<message><source>Import filters for economics</source><translation>経済学用の読み込みフィルタ</translation></message>
<message><source>History</source><translation>歴史学</translation></message>
<message><source>Import filters for history</source><translation>歴史学用の読み込みフィルタ</translation></message>
<message><source>Law</source><translation>法学</translation></message>
<message><source>Import filters for law</source><translation>法学用の読み込みフィルタ</translation></message>
<message><source>Medicine</source><translation>医学</translation></message>
<message><source>Import filters for medicine</source><translation>医学用の読み込みフィルタ</translation></message>
<message><source>Physics</source><translation>物理学</translation></message>
<message><source>Import filters for physics</source><translation>物理学用の読み込みフィルタ</translation></message>
<message><source>System integration</source><translation>システムとの連携</translation></message>
<message><source>Scrivel 21 in the rest of your system</source><translation>システム全体でScrivel 21を利用できます</translation></message>
<message><source>Spotlight importer</source><translation>Spotlightインポータ</translation></message>
<message><source>Spotlight finds the references in your libraries</source><translation>Spotlightでライブラリ内の文献を検索できます</translation></message>
<message><source>Services</source><translation>サービス</translation></message>
<message><source>Scrivel 21 commands in the Services menu of other applications</source><translation>ほかのアプリケーションの「サービス」メニューにScrivel 21のコマンドを追加します</translation></message>
<message><source>Browser extension</source><translation>ブラウザ機能拡張</translation></message>
<message><source>Tessaron for Google Chrome: collects references from web pages</source><translation>Tessaron for Google Chrome：Webページから文献を収集します</translation></message>
<message><source>Not found</source><translation>見つかりません</translation></message>
<message><source>Find</source><translation>検索</translation></message>
<message><source>Find Previous</source><translation>前を検索</translation></message>
<message><source>Find Next</source><translation>次を検索</translation></message>
<message><source>Close</source><translation>閉じる</translation></message>
<message><source>%@, not selected</source><translation>%@、選択されていません</translation></message>
<message><source>%@, not available</source><translation>%@、利用できません</translation></message>
<message><source>%@, selected</source><translation>%@、選択されています</translation></message>
<message><source>%@, partly selected</source><translation>%@、一部が選択されています</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>文書（%@）を読み込めません。インストーラをもう一度ダウンロードし、ダウンロードしたインストーラを起動してください。</translation></message>
<message><source>Look in:</source><translation>場所：</translation></message>
<message><source>Folder:</source><translation>フォルダ：</translation></message>
<message><source>Application:</source><translation>アプリケーション：</translation></message>
<message><source>Choose</source><translation>選択</translation></message>
<message><source>Processing: %@</source><translation>処理中：%@</translation></message>
<message><source>Searching for Microsoft Word</source><translation>Microsoft Word の検索</translation></message>
<message><source>%@ was left as it is.</source><translation>「%@」はそのままです。</translation></message>
<message><source>%@ is installed, as before.</source><translation>「%@」は以前のままインストールされています。</translation></message>
<message><source>%@ is not installed, as before.</source><translation>「%@」は以前と同じくインストールされていません。</translation></message>
<message><source>Administrator rights were refused.</source><translation>管理者の権限が得られませんでした。</translation></message>
<message><source>“%@” is missing from this copy of the installer.</source><translation>このインストーラには「%@」がありません。</translation></message>
<message><source>“%@” could not be written.</source><translation>「%@」に書き込めませんでした。</translation></message>
<message><source>“%@” is still there.</source><translation>「%@」がまだ残っています。</translation></message>
<message><source>It was not chosen who can use it.</source><translation>使用できるユーザが選択されていません。</translation></message>
<message><source>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</source><translation>&#10;次の場所にScrivelのコピーが見つかりました：&#10;&#10;%@&#10;&#10;このコピーをアップデートしますか？&#10;</translation></message>
<message><source>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</source><translation>&#10;次の場所にあるScrivelのコピーのアップデート中にエラーが起きました：&#10;&#10;%@&#10;&#10;もう一度試しますか？&#10;</translation></message>
<message><source>Updating: %@</source><translation>アップデート中：%@</translation></message>
<message><source>“%@” was updated.</source><translation>「%@」をアップデートしました。</translation></message>
<message><source>“%@” could not be updated.</source><translation>「%@」をアップデートできませんでした。</translation></message>
<message><source>“%@” was left as it is.</source><translation>「%@」はそのままです。</translation></message>
<message><source>“%@” is up to date already.</source><translation>「%@」はすでに最新です。</translation></message>
<message><source>This update does not fit “%@”.</source><translation>このアップデートは「%@」には適用できません。</translation></message>
<message><source>The update did not take effect.</source><translation>アップデートが反映されていません。</translation></message>
<message><source>No copy of Microsoft Word was found.</source><translation>Microsoft Word が見つかりませんでした。</translation></message>
<message><source>No copy of Microsoft Word 2016 or 2019 was found.</source><translation>Microsoft Word 2016 または 2019 が見つかりませんでした。</translation></message>
<message><source>Output styles</source><translation>出力スタイル</translation></message>
<message><source>Citation styles of journals and publishers, by subject</source><translation>雑誌と出版社の引用スタイル（分野別）</translation></message>
<message><source>Engineering</source><translation>工学</translation></message>
<message><source>Citation styles for engineering</source><translation>工学の引用スタイル</translation></message>
<message><source>Humanities</source><translation>人文科学</translation></message>
<message><source>Citation styles for the humanities</source><translation>人文科学の引用スタイル</translation></message>
<message><source>Sciences</source><translation>自然科学</translation></message>
<message><source>Citation styles for the sciences</source><translation>自然科学の引用スタイル</translation></message>
<message><source>More on this disk</source><translation>このディスクのその他の項目</translation></message>
<message><source>What else comes with Scrivel 21; the wizard leaves it as it is</source><translation>Scrivel 21 に付属するその他のもの。アシスタントは変更しません</translation></message>
<message><source>Read Me.txt</source><translation>Read Me.txt</translation></message>
<message><source>Notes on this version, beside the installer</source><translation>このバージョンについての注意（インストーラと同じ場所）</translation></message>
<message><source>Examples</source><translation>例</translation></message>
<message><source>A sample library; it is installed with Scrivel 21 itself</source><translation>サンプルライブラリ。Scrivel 21 と一緒にインストールされます</translation></message>
<message><source>Uninstaller</source><translation>アンインストーラ</translation></message>
<message><source>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</source><translation>Scrivel 21 を削除します。このページの「アンインストール」ボタンは他のコンポーネントを削除します</translation></message>
<message><source>Handheld link</source><translation>携帯機器との連携</translation></message>
<message><source>Needs a later version of this installer</source><translation>新しいバージョンのインストーラが必要です</translation></message>
<message><source>Penmark</source><translation>Penmark</translation></message>
<message><source>Spotlight Support</source><translation>Spotlight 対応</translation></message>
<message><source>Scrivel Services</source><translation>Scrivel サービス</translation></message>
<message><source>Tessaron Extension</source><translation>Tessaron 拡張機能</translation></message>
<message><source>Scrivel Content Files</source><translation>Scrivel コンテンツファイル</translation></message>
</context>
</TS>
