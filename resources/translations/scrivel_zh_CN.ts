<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context><name>Scrivel</name>
<message><source>Install %@</source><translation>安装 %@</translation></message>
<message><source>Extracting %@…</source><translation>正在解压缩 %@…</translation></message>
<message><source>Installing %@ to the Applications folder…</source><translation>正在将 %@ 安装到“应用程序”文件夹…</translation></message>
<message><source>Launching %@ for the first time…</source><translation>正在首次启动 %@…</translation></message>
<message><source>Canceling…</source><translation>正在取消…</translation></message>
<message><source>Cancel</source><translation>取消</translation></message>
<message><source>Unable to retreived required files for %@ installation.</source><translation>无法获取安装 %@ 所需的文件。</translation></message>
<message><source>Please try again later.</source><translation>请稍后再试。</translation></message>
<message><source>OK</source><translation>好</translation></message>
<message><source>Scrivel and Microsoft Word cannot be open during %@ installation.</source><translation>安装 %@ 期间不能打开 Scrivel 和 Microsoft Word。</translation></message>
<message><source>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</source><translation>请退出 Scrivel 和 Microsoft Word，然后点按“好”按钮继续，或点按“退出安装器”按钮退出此安装器。</translation></message>
<message><source>Quit Installer</source><translation>退出安装器</translation></message>
<message><source>Would you like to overwrite the %@ at /Applications/%@?</source><translation>要覆盖 %@（/Applications/%@）吗？</translation></message>
<message><source>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</source><translation>您即将安装 %@ 版本 %@，但版本 %@ 已经安装。此操作无法撤销。</translation></message>
<message><source>No</source><translation>否</translation></message>
<message><source>Yes</source><translation>是</translation></message>
<message><source>Ready to install.</source><translation>已准备好安装。</translation></message>
<message><source>Install</source><translation>安装</translation></message>
<message><source>Installation progress</source><translation>安装进度</translation></message>
<message><source>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</source><translation>Scrivel 21 将安装到此电脑的“应用程序”文件夹中，并在准备就绪后打开。</translation></message>
<message><source>%@ KB of %@ KB</source><translation>%@ KB（共 %@ KB）</translation></message>
<message><source>%@ MB of %@ MB</source><translation>%@ MB（共 %@ MB）</translation></message>
<message><source>%@ GB of %@ GB</source><translation>%@ GB（共 %@ GB）</translation></message>
<message><source>The installer of %@ needs administrator rights.</source><translation>%@ 的安装器需要管理员权限。</translation></message>
<message><source>Password:</source><translation>密码：</translation></message>
<message><source>Welcome</source><translation>欢迎</translation></message>
<message><source>Read Me</source><translation>请先阅读</translation></message>
<message><source>License</source><translation>许可</translation></message>
<message><source>Customization</source><translation>自定义</translation></message>
<message><source>Updating System</source><translation>更新系统</translation></message>
<message><source>Summary</source><translation>摘要</translation></message>
<message><source>Finding Scrivel</source><translation>查找 Scrivel</translation></message>
<message><source>Found Scrivel</source><translation>找到的 Scrivel</translation></message>
<message><source>Welcome to Scrivel 21</source><translation>欢迎使用 Scrivel 21</translation></message>
<message><source>End User License Agreement</source><translation>最终用户许可协议</translation></message>
<message><source>Select Components</source><translation>选择组件</translation></message>
<message><source>Thank you for using Scrivel 21</source><translation>感谢您使用 Scrivel 21</translation></message>
<message><source>Finish</source><translation>完成</translation></message>
<message><source>Uninstall Scrivel 21</source><translation>卸载 Scrivel 21</translation></message>
<message><source>Welcome to Scrivel 21 Update</source><translation>欢迎使用 Scrivel 21 更新</translation></message>
<message><source>Penmark for Microsoft Word</source><translation>Penmark for Microsoft Word</translation></message>
<message><source>Scrivel Penmark Configuration</source><translation>Scrivel Penmark 配置</translation></message>
<message><source>Welcome to Scrivel Penmark</source><translation>欢迎使用 Scrivel Penmark</translation></message>
<message><source>Continue</source><translation>继续</translation></message>
<message><source>Next</source><translation>下一步</translation></message>
<message><source>Done</source><translation>完成</translation></message>
<message><source>Exit</source><translation>退出</translation></message>
<message><source>Retry</source><translation>重试</translation></message>
<message><source>Scrivel 21 Installer</source><translation>Scrivel 21 安装器</translation></message>
<message><source>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</source><translation>卸载会将 Scrivel Penmark 从您的电脑中移除。您确定要继续吗？</translation></message>
<message><source>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</source><translation>卸载会将 Scrivel 的所有外部组件从您的电脑中移除。您确定要继续吗？</translation></message>
<message><source>Back</source><translation>上一步</translation></message>
<message><source>%@ Customizer</source><translation>%@ 自定义工具</translation></message>
<message><source>%@ was removed.</source><translation>已移除“%@”。</translation></message>
<message><source>%@ could not be removed.</source><translation>无法移除“%@”。</translation></message>
<message><source>%@ was installed.</source><translation>已安装“%@”。</translation></message>
<message><source>%@ could not be installed.</source><translation>无法安装“%@”。</translation></message>
<message><source>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</source><translation>此安装器中缺少文稿“%@”。若要阅读，请获取完整的安装器。</translation></message>
<message><source>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</source><translation>此安装器中缺少组件列表。若要选择组件，请获取完整的安装器。</translation></message>
<message><source>Help</source><translation>帮助</translation></message>
<message><source>Install Log</source><translation>安装日志</translation></message>
<message><source>The install log is empty.</source><translation>安装日志为空。</translation></message>
<message><source>Nothing was changed.</source><translation>未作任何更改。</translation></message>
<message><source>Steps</source><translation>步骤</translation></message>
<message><source>Looking at what is installed on this computer…</source><translation>正在检查此电脑上已安装的内容…</translation></message>
<message><source>Search progress</source><translation>查找进度</translation></message>
<message><source>This can take a moment.</source><translation>这可能需要一点时间。</translation></message>
<message><source>Please read the license agreement. To continue, you need to agree to it.</source><translation>请阅读许可协议。您需要同意该协议才能继续。</translation></message>
<message><source>License agreement</source><translation>许可协议</translation></message>
<message><source>Answer to the license agreement</source><translation>对许可协议的答复</translation></message>
<message><source>Agree</source><translation>同意</translation></message>
<message><source>Disagree</source><translation>不同意</translation></message>
<message><source>Select the components that you want to use. Cleared components are removed.</source><translation>请选择您要使用的组件。取消选择的组件将被移除。</translation></message>
<message><source>Components</source><translation>组件</translation></message>
<message><source>Component</source><translation>组件</translation></message>
<message><source>Installed</source><translation>已安装</translation></message>
<message><source>Description</source><translation>描述</translation></message>
<message><source>Uninstall…</source><translation>卸载…</translation></message>
<message><source>Removes all components from this computer</source><translation>从此电脑中移除所有组件</translation></message>
<message><source>This is the result of the installation. The log holds every step.</source><translation>以下是安装结果。日志中记录了每个步骤。</translation></message>
<message><source>Result of the installation</source><translation>安装结果</translation></message>
<message><source>This is the result for the components that you selected. The log holds every step.</source><translation>以下是您所选组件的处理结果。日志中记录了每个步骤。</translation></message>
<message><source>Result of the change</source><translation>更改结果</translation></message>
<message><source>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</source><translation>Scrivel 21 自身文件夹之外的所有组件都将从此电脑中移除：Microsoft Word 的 Penmark 加载项、Spotlight 导入器、服务和浏览器扩展。</translation></message>
<message><source>Your libraries and documents stay where they are.</source><translation>您的文献库和文稿会保留在原处。</translation></message>
<message><source>Update progress</source><translation>更新进度</translation></message>
<message><source>Please leave the computer switched on and do not quit the installer until this is finished.</source><translation>在此过程完成之前，请保持电脑开机，且不要退出安装器。</translation></message>
<message><source>This is the result of the uninstallation. The log holds every step.</source><translation>以下是卸载结果。日志中记录了每个步骤。</translation></message>
<message><source>Result of the uninstallation</source><translation>卸载结果</translation></message>
<message><source>Quit Microsoft Word, then click Retry.</source><translation>请退出 Microsoft Word，然后点按“重试”。</translation></message>
<message><source>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</source><translation>Microsoft Word 已打开。只有在 Word 关闭时才能更改其加载项。退出 Word 之前，请存储您在其中打开的文稿。</translation></message>
<message><source>Spotlight and Services</source><translation>Spotlight 和服务</translation></message>
<message><source>Choose who can use the components that you have just selected.</source><translation>请选择谁可以使用您刚才选择的组件。</translation></message>
<message><source>Spotlight: find your Scrivel documents with the search of the system</source><translation>Spotlight：使用系统搜索功能查找您的 Scrivel 文稿</translation></message>
<message><source>Who can use the Spotlight importer</source><translation>谁可以使用 Spotlight 导入器</translation></message>
<message><source>Only for me</source><translation>仅供我使用</translation></message>
<message><source>Goes into the Library folder of your home folder.</source><translation>将安装到您个人文件夹的“资源库”文件夹中。</translation></message>
<message><source>For all users of this computer</source><translation>供此电脑的所有用户使用</translation></message>
<message><source>Goes into the computer’s Library folder. An administrator password may be asked for.</source><translation>将安装到电脑的“资源库”文件夹中。可能会要求您输入管理员密码。</translation></message>
<message><source>Services: use Scrivel from the Services menu of other applications</source><translation>服务：从其他应用程序的“服务”菜单中使用 Scrivel</translation></message>
<message><source>Who can use the Services</source><translation>谁可以使用服务</translation></message>
<message><source>This is the result of the update, copy by copy. The log holds every step.</source><translation>以下是各个副本的更新结果。日志中记录了每个步骤。</translation></message>
<message><source>Result of the update</source><translation>更新结果</translation></message>
<message><source>There is no copy of Scrivel 21 that this update fits.</source><translation>没有适用于此更新的 Scrivel 21 副本。</translation></message>
<message><source>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</source><translation>此电脑上未作任何更改。已是最新或被改动过的副本不会列出；日志中列有检查过的所有副本。</translation></message>
<message><source>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</source><translation>加载项将安装到每个副本的启动文件夹中，并在下次打开 Word 时载入。</translation></message>
<message><source>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</source><translation>以下是将安装 Penmark 加载项的 Microsoft Word 副本。您可以添加缺少的副本，或更改某个副本的启动文件夹。</translation></message>
<message><source>Copies of Microsoft Word</source><translation>Microsoft Word 副本</translation></message>
<message><source>Word</source><translation>Word</translation></message>
<message><source>Startup Folder</source><translation>启动文件夹</translation></message>
<message><source>Version</source><translation>版本</translation></message>
<message><source>Adds a copy of Word and its startup folder</source><translation>添加 Word 副本及其启动文件夹</translation></message>
<message><source>Add</source><translation>添加</translation></message>
<message><source>Removes the add-in from the selected folder and forgets the folder</source><translation>从所选文件夹中移除加载项，并不再记住该文件夹</translation></message>
<message><source>Remove</source><translation>移除</translation></message>
<message><source>Change…</source><translation>更改…</translation></message>
<message><source>Chooses another startup folder for the selected copy</source><translation>为所选副本选取其他启动文件夹</translation></message>
<message><source>Reset</source><translation>还原</translation></message>
<message><source>Forgets the folder that you chose for the selected copy</source><translation>不再记住您为所选副本选取的文件夹</translation></message>
<message><source>Select your Microsoft Word startup folder</source><translation>选择您的 Microsoft Word 启动文件夹</translation></message>
<message><source>Please locate your installed copy of Microsoft Word</source><translation>请找到已安装的 Microsoft Word 副本</translation></message>
<message><source>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</source><translation>如果您已将 Word 设定为使用其他启动文件夹，或者您使用的是非英文版 Word，请点按“设定”来设定启动文件夹的位置。</translation></message>
<message><source>Set</source><translation>设定</translation></message>
<message><source>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</source><translation>您选取的项目似乎不在 Microsoft Word 的安装文件夹中。请重试。</translation></message>
<message><source>Uninstall Penmark components from the selected folder, immediately?</source><translation>要立即从所选文件夹中卸载 Penmark 组件吗？</translation></message>
<message><source>Uninstall</source><translation>卸载</translation></message>
<message><source>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</source><translation>%@：未在此电脑上找到 Microsoft Word 2016 或 2019。</translation></message>
<message><source>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@：将为此电脑上安装的 Microsoft Word 2016 或 2019 安装 Penmark 加载项。</translation></message>
<message><source>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@：将为此电脑上安装的 %d 个 Microsoft Word 2016 或 2019 副本安装 Penmark 加载项。</translation></message>
<message><source>Word Locations…</source><translation>Word 位置…</translation></message>
<message><source>Shows where each copy of Word gets the add-in, and lets you add or change a place</source><translation>显示每个 Word 副本的加载项位置，并可添加或更改位置</translation></message>
<message><source>Goes back to the components</source><translation>返回组件选择</translation></message>
<message><source>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</source><translation>Penmark 是 Scrivel 用于 Microsoft Word 的加载项。在您写作时，它会从您的文献库中插入引文，并以您选取的样式生成参考文献列表。</translation></message>
<message><source>What to do with Penmark</source><translation>对 Penmark 执行的操作</translation></message>
<message><source>Install Penmark</source><translation>安装 Penmark</translation></message>
<message><source>Puts the add-in into the startup folder of every copy of Word on this computer.</source><translation>将加载项安装到此电脑上每个 Word 副本的启动文件夹中。</translation></message>
<message><source>Uninstall Penmark</source><translation>卸载 Penmark</translation></message>
<message><source>Removes the add-in from Word. Your documents and their citations stay as they are.</source><translation>从 Word 中移除加载项。您的文稿及其中的引文将保持不变。</translation></message>
<message><source>Quit Microsoft Word before you continue.</source><translation>请先退出 Microsoft Word，然后再继续。</translation></message>
<message><source>This is the result for Scrivel Penmark. The log holds every step.</source><translation>以下是 Scrivel Penmark 的处理结果。日志中记录了每个步骤。</translation></message>
<message><source>Result for Scrivel Penmark</source><translation>Scrivel Penmark 的处理结果</translation></message>
<message><source>This is the result of removing Scrivel Penmark. The log holds every step.</source><translation>以下是移除 Scrivel Penmark 的结果。日志中记录了每个步骤。</translation></message>
<message><source>Result of removing Scrivel Penmark</source><translation>移除 Scrivel Penmark 的结果</translation></message>
<message><source>Show Log</source><translation>显示日志</translation></message>
<message><source>Installer</source><translation>安装器</translation></message>
<message><source>Customize…</source><translation>自定义…</translation></message>
<message><source>Install Penmark…</source><translation>安装 Penmark…</translation></message>
<message><source>Update Installed Copies…</source><translation>更新已安装的副本…</translation></message>
<message><source>Microsoft Word integration</source><translation>Microsoft Word 集成</translation></message>
<message><source>Work with your references while you write</source><translation>在写作时使用您的参考文献</translation></message>
<message><source>Penmark add-in</source><translation>Penmark 加载项</translation></message>
<message><source>Penmark for Microsoft Word: citations and bibliographies in your documents</source><translation>Penmark for Microsoft Word：在您的文稿中添加引文和参考文献列表</translation></message>
<message><source>Content categories</source><translation>内容类别</translation></message>
<message><source>Import filters for databases and library catalogues, by subject</source><translation>用于数据库和图书馆目录的导入过滤器（按学科分类）</translation></message>
<message><source>Chemistry</source><translation>化学</translation></message>
<message><source>Import filters for chemistry</source><translation>化学学科的导入过滤器</translation></message>
<message><source>Economics</source><translation>经济学</translation></message>
<message><source>Import filters for economics</source><translation>经济学学科的导入过滤器</translation></message>
<message><source>History</source><translation>历史学</translation></message>
<message><source>Import filters for history</source><translation>历史学学科的导入过滤器</translation></message>
<message><source>Law</source><translation>法学</translation></message>
<message><source>Import filters for law</source><translation>法学学科的导入过滤器</translation></message>
<message><source>Medicine</source><translation>医学</translation></message>
<message><source>Import filters for medicine</source><translation>医学学科的导入过滤器</translation></message>
<message><source>Physics</source><translation>物理学</translation></message>
<message><source>Import filters for physics</source><translation>物理学学科的导入过滤器</translation></message>
<message><source>System integration</source><translation>系统集成</translation></message>
<message><source>Scrivel 21 in the rest of your system</source><translation>在系统其他位置使用 Scrivel 21</translation></message>
<message><source>Spotlight importer</source><translation>Spotlight 导入器</translation></message>
<message><source>Spotlight finds the references in your libraries</source><translation>Spotlight 可查找您文献库中的参考文献</translation></message>
<message><source>Services</source><translation>服务</translation></message>
<message><source>Scrivel 21 commands in the Services menu of other applications</source><translation>其他应用程序“服务”菜单中的 Scrivel 21 命令</translation></message>
<message><source>Browser extension</source><translation>浏览器扩展</translation></message>
<message><source>Tessaron for Google Chrome: collects references from web pages</source><translation>Tessaron for Google Chrome：从网页中收集参考文献</translation></message>
<message><source>Not found</source><translation>未找到</translation></message>
<message><source>Find</source><translation>查找</translation></message>
<message><source>Find Previous</source><translation>查找上一个</translation></message>
<message><source>Find Next</source><translation>查找下一个</translation></message>
<message><source>Close</source><translation>关闭</translation></message>
<message><source>%@, not selected</source><translation>%@，未选择</translation></message>
<message><source>%@, not available</source><translation>%@，不可用</translation></message>
<message><source>%@, selected</source><translation>%@，已选择</translation></message>
<message><source>%@, partly selected</source><translation>%@，部分选择</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>无法读取位于“%@”的文稿。请重新下载安装器，然后启动新下载的安装器。</translation></message>
<message><source>Look in:</source><translation>位置：</translation></message>
<message><source>Folder:</source><translation>文件夹：</translation></message>
<message><source>Application:</source><translation>应用程序：</translation></message>
<message><source>Choose</source><translation>选取</translation></message>
<message><source>Processing: %@</source><translation>正在处理：%@</translation></message>
<message><source>Searching for Microsoft Word</source><translation>查找 Microsoft Word</translation></message>
<message><source>%@ was left as it is.</source><translation>“%@”保持原样。</translation></message>
<message><source>%@ is installed, as before.</source><translation>“%@”与之前一样，已安装。</translation></message>
<message><source>%@ is not installed, as before.</source><translation>“%@”与之前一样，未安装。</translation></message>
<message><source>Administrator rights were refused.</source><translation>未获得管理员权限。</translation></message>
<message><source>“%@” is missing from this copy of the installer.</source><translation>此安装程序副本中缺少“%@”。</translation></message>
<message><source>“%@” could not be written.</source><translation>无法写入“%@”。</translation></message>
<message><source>“%@” is still there.</source><translation>“%@”仍然存在。</translation></message>
<message><source>It was not chosen who can use it.</source><translation>未选择可使用它的用户。</translation></message>
<message><source>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</source><translation>&#10;在以下位置找到了 Scrivel 的副本：&#10;&#10;%@&#10;&#10;要更新此副本吗？&#10;</translation></message>
<message><source>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</source><translation>&#10;更新此位置的 Scrivel 副本时出错：&#10;&#10;%@&#10;&#10;要重试吗？&#10;</translation></message>
<message><source>Updating: %@</source><translation>正在更新：%@</translation></message>
<message><source>“%@” was updated.</source><translation>“%@”已更新。</translation></message>
<message><source>“%@” could not be updated.</source><translation>无法更新“%@”。</translation></message>
<message><source>“%@” was left as it is.</source><translation>“%@”保持原样。</translation></message>
<message><source>“%@” is up to date already.</source><translation>“%@”已是最新。</translation></message>
<message><source>This update does not fit “%@”.</source><translation>此更新不适用于“%@”。</translation></message>
<message><source>The update did not take effect.</source><translation>更新未生效。</translation></message>
<message><source>No copy of Microsoft Word was found.</source><translation>未找到 Microsoft Word。</translation></message>
<message><source>No copy of Microsoft Word 2016 or 2019 was found.</source><translation>未找到 Microsoft Word 2016 或 2019。</translation></message>
<message><source>Output styles</source><translation>输出样式</translation></message>
<message><source>Citation styles of journals and publishers, by subject</source><translation>期刊和出版社的引文样式，按学科分类</translation></message>
<message><source>Engineering</source><translation>工程</translation></message>
<message><source>Citation styles for engineering</source><translation>工程学引文样式</translation></message>
<message><source>Humanities</source><translation>人文学科</translation></message>
<message><source>Citation styles for the humanities</source><translation>人文学科引文样式</translation></message>
<message><source>Sciences</source><translation>自然科学</translation></message>
<message><source>Citation styles for the sciences</source><translation>自然科学引文样式</translation></message>
<message><source>More on this disk</source><translation>此磁盘上的其他内容</translation></message>
<message><source>What else comes with Scrivel 21; the wizard leaves it as it is</source><translation>Scrivel 21 附带的其他内容；向导不会更改它们</translation></message>
<message><source>Read Me.txt</source><translation>Read Me.txt</translation></message>
<message><source>Notes on this version, beside the installer</source><translation>关于此版本的说明，位于安装程序旁</translation></message>
<message><source>Examples</source><translation>示例</translation></message>
<message><source>A sample library; it is installed with Scrivel 21 itself</source><translation>示例文献库；随 Scrivel 21 一起安装</translation></message>
<message><source>Uninstaller</source><translation>卸载程序</translation></message>
<message><source>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</source><translation>移除 Scrivel 21；此页面的“卸载”按钮会移除其他组件</translation></message>
<message><source>Handheld link</source><translation>手持设备连接</translation></message>
<message><source>Needs a later version of this installer</source><translation>需要更新版本的安装程序</translation></message>
<message><source>Penmark</source><translation>Penmark</translation></message>
<message><source>Spotlight Support</source><translation>Spotlight 支持</translation></message>
<message><source>Scrivel Services</source><translation>Scrivel 服务</translation></message>
<message><source>Tessaron Extension</source><translation>Tessaron 扩展</translation></message>
<message><source>Scrivel Content Files</source><translation>Scrivel 内容文件</translation></message>
</context>
</TS>
