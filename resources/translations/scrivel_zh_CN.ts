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
<message><source>Find</source><translation>查找</translation></message>
<message><source>Find Next</source><translation>查找下一个</translation></message>
<message><source>Find Previous</source><translation>查找上一个</translation></message>
<message><source>Not found</source><translation>未找到</translation></message>
<message><source>Close</source><translation>关闭</translation></message>
<message><source>Look in:</source><translation>查找范围：</translation></message>
<message><source>Folder:</source><translation>文件夹：</translation></message>
<message><source>Application:</source><translation>应用程序：</translation></message>
<message><source>Choose</source><translation>选取</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>无法读取 %@ 处的文本。请重新下载安装程序并从那里启动。</translation></message>
<message><source>%@, selected</source><translation>%@，已选择</translation></message>
<message><source>%@, not selected</source><translation>%@，未选择</translation></message>
<message><source>%@, partly selected</source><translation>%@，部分选择</translation></message>
<message><source>%@, not available</source><translation>%@，不可用</translation></message>
</context>
</TS>
