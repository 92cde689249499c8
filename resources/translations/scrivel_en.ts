<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context><name>Scrivel</name>
<message><source>Install %@</source><translation>Install %@</translation></message>
<message><source>Extracting %@…</source><translation>Extracting %@…</translation></message>
<message><source>Installing %@ to the Applications folder…</source><translation>Installing %@ to the Applications folder…</translation></message>
<message><source>Launching %@ for the first time…</source><translation>Launching %@ for the first time…</translation></message>
<message><source>Canceling…</source><translation>Canceling…</translation></message>
<message><source>Cancel</source><translation>Cancel</translation></message>
<message><source>Unable to retreived required files for %@ installation.</source><translation>Unable to retreived required files for %@ installation.</translation></message>
<message><source>Please try again later.</source><translation>Please try again later.</translation></message>
<message><source>OK</source><translation>OK</translation></message>
<message><source>Scrivel and Microsoft Word cannot be open during %@ installation.</source><translation>Scrivel and Microsoft Word cannot be open during %@ installation.</translation></message>
<message><source>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</source><translation>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</translation></message>
<message><source>Quit Installer</source><translation>Quit Installer</translation></message>
<message><source>Would you like to overwrite the %@ at /Applications/%@?</source><translation>Would you like to overwrite the %@ at /Applications/%@?</translation></message>
<message><source>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</source><translation>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</translation></message>
<message><source>No</source><translation>No</translation></message>
<message><source>Yes</source><translation>Yes</translation></message>
<message><source>Ready to install.</source><translation>Ready to install.</translation></message>
<message><source>Install</source><translation>Install</translation></message>
<message><source>Installation progress</source><translation>Installation progress</translation></message>
<message><source>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</source><translation>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</translation></message>
<message><source>%@ KB of %@ KB</source><translation>%@ KB of %@ KB</translation></message>
<message><source>%@ MB of %@ MB</source><translation>%@ MB of %@ MB</translation></message>
<message><source>%@ GB of %@ GB</source><translation>%@ GB of %@ GB</translation></message>
<message><source>The installer of %@ needs administrator rights.</source><translation>The installer of %@ needs administrator rights.</translation></message>
<message><source>Password:</source><translation>Password:</translation></message>
<message><source>Find</source><translation>Find</translation></message>
<message><source>Find Next</source><translation>Find Next</translation></message>
<message><source>Find Previous</source><translation>Find Previous</translation></message>
<message><source>Not found</source><translation>Not found</translation></message>
<message><source>Close</source><translation>Close</translation></message>
<message><source>Look in:</source><translation>Look in:</translation></message>
<message><source>Folder:</source><translation>Folder:</translation></message>
<message><source>Application:</source><translation>Application:</translation></message>
<message><source>Choose</source><translation>Choose</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>The text at %@ can’t be read. Download the installer again and start it from there.</translation></message>
<message><source>%@, selected</source><translation>%@, selected</translation></message>
<message><source>%@, not selected</source><translation>%@, not selected</translation></message>
<message><source>%@, partly selected</source><translation>%@, partly selected</translation></message>
<message><source>%@, not available</source><translation>%@, not available</translation></message>
</context>
</TS>
