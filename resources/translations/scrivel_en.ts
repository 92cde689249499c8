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
<message><source>Welcome</source><translation>Welcome</translation></message>
<message><source>Read Me</source><translation>Read Me</translation></message>
<message><source>License</source><translation>License</translation></message>
<message><source>Customization</source><translation>Customization</translation></message>
<message><source>Updating System</source><translation>Updating System</translation></message>
<message><source>Summary</source><translation>Summary</translation></message>
<message><source>Finding Scrivel</source><translation>Finding Scrivel</translation></message>
<message><source>Found Scrivel</source><translation>Found Scrivel</translation></message>
<message><source>Welcome to Scrivel 21</source><translation>Welcome to Scrivel 21</translation></message>
<message><source>End User License Agreement</source><translation>End User License Agreement</translation></message>
<message><source>Select Components</source><translation>Select Components</translation></message>
<message><source>Thank you for using Scrivel 21</source><translation>Thank you for using Scrivel 21</translation></message>
<message><source>Finish</source><translation>Finish</translation></message>
<message><source>Uninstall Scrivel 21</source><translation>Uninstall Scrivel 21</translation></message>
<message><source>Welcome to Scrivel 21 Update</source><translation>Welcome to Scrivel 21 Update</translation></message>
<message><source>Penmark for Microsoft Word</source><translation>Penmark for Microsoft Word</translation></message>
<message><source>Scrivel Penmark Configuration</source><translation>Scrivel Penmark Configuration</translation></message>
<message><source>Welcome to Scrivel Penmark</source><translation>Welcome to Scrivel Penmark</translation></message>
<message><source>Continue</source><translation>Continue</translation></message>
<message><source>Next</source><translation>Next</translation></message>
<message><source>Done</source><translation>Done</translation></message>
<message><source>Exit</source><translation>Exit</translation></message>
<message><source>Retry</source><translation>Retry</translation></message>
<message><source>Scrivel 21 Installer</source><translation>Scrivel 21 Installer</translation></message>
<message><source>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</source><translation>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</translation></message>
<message><source>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</source><translation>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</translation></message>
<message><source>Back</source><translation>Back</translation></message>
<message><source>%@ Customizer</source><translation>%@ Customizer</translation></message>
<message><source>%@ was removed.</source><translation>%@ was removed.</translation></message>
<message><source>%@ could not be removed.</source><translation>%@ could not be removed.</translation></message>
<message><source>%@ was installed.</source><translation>%@ was installed.</translation></message>
<message><source>%@ could not be installed.</source><translation>%@ could not be installed.</translation></message>
<message><source>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</source><translation>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</translation></message>
<message><source>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</source><translation>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</translation></message>
<message><source>Help</source><translation>Help</translation></message>
<message><source>Install Log</source><translation>Install Log</translation></message>
<message><source>The install log is empty.</source><translation>The install log is empty.</translation></message>
<message><source>Nothing was changed.</source><translation>Nothing was changed.</translation></message>
<message><source>Steps</source><translation>Steps</translation></message>
<message><source>Looking at what is installed on this computer…</source><translation>Looking at what is installed on this computer…</translation></message>
<message><source>Search progress</source><translation>Search progress</translation></message>
<message><source>This can take a moment.</source><translation>This can take a moment.</translation></message>
<message><source>Please read the license agreement. To continue, you need to agree to it.</source><translation>Please read the license agreement. To continue, you need to agree to it.</translation></message>
<message><source>License agreement</source><translation>License agreement</translation></message>
<message><source>Answer to the license agreement</source><translation>Answer to the license agreement</translation></message>
<message><source>Agree</source><translation>Agree</translation></message>
<message><source>Disagree</source><translation>Disagree</translation></message>
<message><source>Select the components that you want to use. Cleared components are removed.</source><translation>Select the components that you want to use. Cleared components are removed.</translation></message>
<message><source>Components</source><translation>Components</translation></message>
<message><source>Component</source><translation>Component</translation></message>
<message><source>Installed</source><translation>Installed</translation></message>
<message><source>Description</source><translation>Description</translation></message>
<message><source>Uninstall…</source><translation>Uninstall…</translation></message>
<message><source>Removes all components from this computer</source><translation>Removes all components from this computer</translation></message>
<message><source>This is the result of the installation. The log holds every step.</source><translation>This is the result of the installation. The log holds every step.</translation></message>
<message><source>Result of the installation</source><translation>Result of the installation</translation></message>
<message><source>This is the result for the components that you selected. The log holds every step.</source><translation>This is the result for the components that you selected. The log holds every step.</translation></message>
<message><source>Result of the change</source><translation>Result of the change</translation></message>
<message><source>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</source><translation>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</translation></message>
<message><source>Your libraries and documents stay where they are.</source><translation>Your libraries and documents stay where they are.</translation></message>
<message><source>Update progress</source><translation>Update progress</translation></message>
<message><source>Please leave the computer switched on and do not quit the installer until this is finished.</source><translation>Please leave the computer switched on and do not quit the installer until this is finished.</translation></message>
<message><source>This is the result of the uninstallation. The log holds every step.</source><translation>This is the result of the uninstallation. The log holds every step.</translation></message>
<message><source>Result of the uninstallation</source><translation>Result of the uninstallation</translation></message>
<message><source>Quit Microsoft Word, then click Retry.</source><translation>Quit Microsoft Word, then click Retry.</translation></message>
<message><source>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</source><translation>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</translation></message>
<message><source>Spotlight and Services</source><translation>Spotlight and Services</translation></message>
<message><source>Choose who can use the components that you have just selected.</source><translation>Choose who can use the components that you have just selected.</translation></message>
<message><source>Spotlight: find your Scrivel documents with the search of the system</source><translation>Spotlight: find your Scrivel documents with the search of the system</translation></message>
<message><source>Who can use the Spotlight importer</source><translation>Who can use the Spotlight importer</translation></message>
<message><source>Only for me</source><translation>Only for me</translation></message>
<message><source>Goes into the Library folder of your home folder.</source><translation>Goes into the Library folder of your home folder.</translation></message>
<message><source>For all users of this computer</source><translation>For all users of this computer</translation></message>
<message><source>Goes into the computer’s Library folder. An administrator password may be asked for.</source><translation>Goes into the computer’s Library folder. An administrator password may be asked for.</translation></message>
<message><source>Services: use Scrivel from the Services menu of other applications</source><translation>Services: use Scrivel from the Services menu of other applications</translation></message>
<message><source>Who can use the Services</source><translation>Who can use the Services</translation></message>
<message><source>This is the result of the update, copy by copy. The log holds every step.</source><translation>This is the result of the update, copy by copy. The log holds every step.</translation></message>
<message><source>Result of the update</source><translation>Result of the update</translation></message>
<message><source>There is no copy of Scrivel 21 that this update fits.</source><translation>There is no copy of Scrivel 21 that this update fits.</translation></message>
<message><source>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</source><translation>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</translation></message>
<message><source>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</source><translation>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</translation></message>
<message><source>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</source><translation>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</translation></message>
<message><source>Copies of Microsoft Word</source><translation>Copies of Microsoft Word</translation></message>
<message><source>Word</source><translation>Word</translation></message>
<message><source>Startup Folder</source><translation>Startup Folder</translation></message>
<message><source>Version</source><translation>Version</translation></message>
<message><source>Adds a copy of Word and its startup folder</source><translation>Adds a copy of Word and its startup folder</translation></message>
<message><source>Add</source><translation>Add</translation></message>
<message><source>Removes the add-in from the selected folder and forgets the folder</source><translation>Removes the add-in from the selected folder and forgets the folder</translation></message>
<message><source>Remove</source><translation>Remove</translation></message>
<message><source>Change…</source><translation>Change…</translation></message>
<message><source>Chooses another startup folder for the selected copy</source><translation>Chooses another startup folder for the selected copy</translation></message>
<message><source>Reset</source><translation>Reset</translation></message>
<message><source>Forgets the folder that you chose for the selected copy</source><translation>Forgets the folder that you chose for the selected copy</translation></message>
<message><source>Select your Microsoft Word startup folder</source><translation>Select your Microsoft Word startup folder</translation></message>
<message><source>Please locate your installed copy of Microsoft Word</source><translation>Please locate your installed copy of Microsoft Word</translation></message>
<message><source>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</source><translation>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</translation></message>
<message><source>Set</source><translation>Set</translation></message>
<message><source>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</source><translation>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</translation></message>
<message><source>Uninstall Penmark components from the selected folder, immediately?</source><translation>Uninstall Penmark components from the selected folder, immediately?</translation></message>
<message><source>Uninstall</source><translation>Uninstall</translation></message>
<message><source>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</source><translation>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</translation></message>
<message><source>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</translation></message>
<message><source>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</translation></message>
<message><source>Word Locations…</source><translation>Word Locations…</translation></message>
<message><source>Shows where each copy of Word gets the add-in, and lets you add or change a place</source><translation>Shows where each copy of Word gets the add-in, and lets you add or change a place</translation></message>
<message><source>Goes back to the components</source><translation>Goes back to the components</translation></message>
<message><source>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</source><translation>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</translation></message>
<message><source>What to do with Penmark</source><translation>What to do with Penmark</translation></message>
<message><source>Install Penmark</source><translation>Install Penmark</translation></message>
<message><source>Puts the add-in into the startup folder of every copy of Word on this computer.</source><translation>Puts the add-in into the startup folder of every copy of Word on this computer.</translation></message>
<message><source>Uninstall Penmark</source><translation>Uninstall Penmark</translation></message>
<message><source>Removes the add-in from Word. Your documents and their citations stay as they are.</source><translation>Removes the add-in from Word. Your documents and their citations stay as they are.</translation></message>
<message><source>Quit Microsoft Word before you continue.</source><translation>Quit Microsoft Word before you continue.</translation></message>
<message><source>This is the result for Scrivel Penmark. The log holds every step.</source><translation>This is the result for Scrivel Penmark. The log holds every step.</translation></message>
<message><source>Result for Scrivel Penmark</source><translation>Result for Scrivel Penmark</translation></message>
<message><source>This is the result of removing Scrivel Penmark. The log holds every step.</source><translation>This is the result of removing Scrivel Penmark. The log holds every step.</translation></message>
<message><source>Result of removing Scrivel Penmark</source><translation>Result of removing Scrivel Penmark</translation></message>
<message><source>Show Log</source><translation>Show Log</translation></message>
<message><source>Installer</source><translation>Installer</translation></message>
<message><source>Customize…</source><translation>Customize…</translation></message>
<message><source>Install Penmark…</source><translation>Install Penmark…</translation></message>
<message><source>Update Installed Copies…</source><translation>Update Installed Copies…</translation></message>
<message><source>Microsoft Word integration</source><translation>Microsoft Word integration</translation></message>
<message><source>Work with your references while you write</source><translation>Work with your references while you write</translation></message>
<message><source>Penmark add-in</source><translation>Penmark add-in</translation></message>
<message><source>Penmark for Microsoft Word: citations and bibliographies in your documents</source><translation>Penmark for Microsoft Word: citations and bibliographies in your documents</translation></message>
<message><source>Content categories</source><translation>Content categories</translation></message>
<message><source>Import filters for databases and library catalogues, by subject</source><translation>Import filters for databases and library catalogues, by subject</translation></message>
<message><source>Chemistry</source><translation>Chemistry</translation></message>
<message><source>Import filters for chemistry</source><translation>Import filters for chemistry</translation></message>
<message><source>Economics</source><translation>Economics</translation></message>
<message><source>Import filters for economics</source><translation>Import filters for economics</translation></message>
<message><source>History</source><translation>History</translation></message>
<message><source>Import filters for history</source><translation>Import filters for history</translation></message>
<message><source>Law</source><translation>Law</translation></message>
<message><source>Import filters for law</source><translation>Import filters for law</translation></message>
<message><source>Medicine</source><translation>Medicine</translation></message>
<message><source>Import filters for medicine</source><translation>Import filters for medicine</translation></message>
<message><source>Physics</source><translation>Physics</translation></message>
<message><source>Import filters for physics</source><translation>Import filters for physics</translation></message>
<message><source>System integration</source><translation>System integration</translation></message>
<message><source>Scrivel 21 in the rest of your system</source><translation>Scrivel 21 in the rest of your system</translation></message>
<message><source>Spotlight importer</source><translation>Spotlight importer</translation></message>
<message><source>Spotlight finds the references in your libraries</source><translation>Spotlight finds the references in your libraries</translation></message>
<message><source>Services</source><translation>Services</translation></message>
<message><source>Scrivel 21 commands in the Services menu of other applications</source><translation>Scrivel 21 commands in the Services menu of other applications</translation></message>
<message><source>Browser extension</source><translation>Browser extension</translation></message>
<message><source>Tessaron for Google Chrome: collects references from web pages</source><translation>Tessaron for Google Chrome: collects references from web pages</translation></message>
<message><source>Not found</source><translation>Not found</translation></message>
<message><source>Find</source><translation>Find</translation></message>
<message><source>Find Previous</source><translation>Find Previous</translation></message>
<message><source>Find Next</source><translation>Find Next</translation></message>
<message><source>Close</source><translation>Close</translation></message>
<message><source>%@, not selected</source><translation>%@, not selected</translation></message>
<message><source>%@, not available</source><translation>%@, not available</translation></message>
<message><source>%@, selected</source><translation>%@, selected</translation></message>
<message><source>%@, partly selected</source><translation>%@, partly selected</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>The text at %@ can’t be read. Download the installer again and start it from there.</translation></message>
<message><source>Look in:</source><translation>Look in:</translation></message>
<message><source>Folder:</source><translation>Folder:</translation></message>
<message><source>Application:</source><translation>Application:</translation></message>
<message><source>Choose</source><translation>Choose</translation></message>
<message><source>Processing: %@</source><translation>Processing: %@</translation></message>
<message><source>Searching for Microsoft Word</source><translation>Searching for Microsoft Word</translation></message>
<message><source>%@ was left as it is.</source><translation>%@ was left as it is.</translation></message>
<message><source>%@ is installed, as before.</source><translation>%@ is installed, as before.</translation></message>
<message><source>%@ is not installed, as before.</source><translation>%@ is not installed, as before.</translation></message>
<message><source>Administrator rights were refused.</source><translation>Administrator rights were refused.</translation></message>
<message><source>“%@” is missing from this copy of the installer.</source><translation>“%@” is missing from this copy of the installer.</translation></message>
<message><source>“%@” could not be written.</source><translation>“%@” could not be written.</translation></message>
<message><source>“%@” is still there.</source><translation>“%@” is still there.</translation></message>
<message><source>It was not chosen who can use it.</source><translation>It was not chosen who can use it.</translation></message>
<message><source>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</source><translation>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</translation></message>
<message><source>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</source><translation>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</translation></message>
<message><source>Updating: %@</source><translation>Updating: %@</translation></message>
<message><source>“%@” was updated.</source><translation>“%@” was updated.</translation></message>
<message><source>“%@” could not be updated.</source><translation>“%@” could not be updated.</translation></message>
<message><source>“%@” was left as it is.</source><translation>“%@” was left as it is.</translation></message>
<message><source>“%@” is up to date already.</source><translation>“%@” is up to date already.</translation></message>
<message><source>This update does not fit “%@”.</source><translation>This update does not fit “%@”.</translation></message>
<message><source>The update did not take effect.</source><translation>The update did not take effect.</translation></message>
<message><source>No copy of Microsoft Word was found.</source><translation>No copy of Microsoft Word was found.</translation></message>
<message><source>No copy of Microsoft Word 2016 or 2019 was found.</source><translation>No copy of Microsoft Word 2016 or 2019 was found.</translation></message>
<message><source>Output styles</source><translation>Output styles</translation></message>
<message><source>Citation styles of journals and publishers, by subject</source><translation>Citation styles of journals and publishers, by subject</translation></message>
<message><source>Engineering</source><translation>Engineering</translation></message>
<message><source>Citation styles for engineering</source><translation>Citation styles for engineering</translation></message>
<message><source>Humanities</source><translation>Humanities</translation></message>
<message><source>Citation styles for the humanities</source><translation>Citation styles for the humanities</translation></message>
<message><source>Sciences</source><translation>Sciences</translation></message>
<message><source>Citation styles for the sciences</source><translation>Citation styles for the sciences</translation></message>
<message><source>More on this disk</source><translation>More on this disk</translation></message>
<message><source>What else comes with Scrivel 21; the wizard leaves it as it is</source><translation>What else comes with Scrivel 21; the wizard leaves it as it is</translation></message>
<message><source>Read Me.txt</source><translation>Read Me.txt</translation></message>
<message><source>Notes on this version, beside the installer</source><translation>Notes on this version, beside the installer</translation></message>
<message><source>Examples</source><translation>Examples</translation></message>
<message><source>A sample library; it is installed with Scrivel 21 itself</source><translation>A sample library; it is installed with Scrivel 21 itself</translation></message>
<message><source>Uninstaller</source><translation>Uninstaller</translation></message>
<message><source>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</source><translation>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</translation></message>
<message><source>Handheld link</source><translation>Handheld link</translation></message>
<message><source>Needs a later version of this installer</source><translation>Needs a later version of this installer</translation></message>
<message><source>Penmark</source><translation>Penmark</translation></message>
<message><source>Spotlight Support</source><translation>Spotlight Support</translation></message>
<message><source>Scrivel Services</source><translation>Scrivel Services</translation></message>
<message><source>Tessaron Extension</source><translation>Tessaron Extension</translation></message>
<message><source>Scrivel Content Files</source><translation>Scrivel Content Files</translation></message>
</context>
</TS>
