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
<message><source>Find</source><translation>検索</translation></message>
<message><source>Find Next</source><translation>次を検索</translation></message>
<message><source>Find Previous</source><translation>前を検索</translation></message>
<message><source>Not found</source><translation>見つかりません</translation></message>
<message><source>Close</source><translation>閉じる</translation></message>
<message><source>Look in:</source><translation>場所：</translation></message>
<message><source>Folder:</source><translation>フォルダ：</translation></message>
<message><source>Application:</source><translation>アプリケーション：</translation></message>
<message><source>Choose</source><translation>選択</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>%@ の文書を読み込めません。インストーラをもう一度ダウンロードして起動してください。</translation></message>
<message><source>%@, selected</source><translation>%@、選択済み</translation></message>
<message><source>%@, not selected</source><translation>%@、未選択</translation></message>
<message><source>%@, partly selected</source><translation>%@、一部選択</translation></message>
<message><source>%@, not available</source><translation>%@、利用不可</translation></message>
</context>
</TS>
