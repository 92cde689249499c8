<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context><name>Scrivel</name>
<message><source>Install %@</source><translation>%@ installieren</translation></message>
<message><source>Extracting %@…</source><translation>%@ wird entpackt …</translation></message>
<message><source>Installing %@ to the Applications folder…</source><translation>%@ wird im Ordner „Programme“ installiert …</translation></message>
<message><source>Launching %@ for the first time…</source><translation>%@ wird zum ersten Mal gestartet …</translation></message>
<message><source>Canceling…</source><translation>Wird abgebrochen …</translation></message>
<message><source>Cancel</source><translation>Abbrechen</translation></message>
<message><source>Unable to retreived required files for %@ installation.</source><translation>Die für die Installation von %@ erforderlichen Dateien konnten nicht abgerufen werden.</translation></message>
<message><source>Please try again later.</source><translation>Bitte versuchen Sie es später erneut.</translation></message>
<message><source>OK</source><translation>OK</translation></message>
<message><source>Scrivel and Microsoft Word cannot be open during %@ installation.</source><translation>Scrivel und Microsoft Word dürfen während der Installation von %@ nicht geöffnet sein.</translation></message>
<message><source>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</source><translation>Beenden Sie Scrivel und Microsoft Word und klicken Sie auf „OK“, um fortzufahren, oder klicken Sie auf „Installationsprogramm beenden“, um dieses Installationsprogramm zu beenden.</translation></message>
<message><source>Quit Installer</source><translation>Installationsprogramm beenden</translation></message>
<message><source>Would you like to overwrite the %@ at /Applications/%@?</source><translation>Möchten Sie %@ unter /Applications/%@ überschreiben?</translation></message>
<message><source>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</source><translation>Sie sind dabei, %@ Version %@ zu installieren, aber Version %@ ist bereits installiert. Dieser Vorgang kann nicht rückgängig gemacht werden.</translation></message>
<message><source>No</source><translation>Nein</translation></message>
<message><source>Yes</source><translation>Ja</translation></message>
<message><source>Ready to install.</source><translation>Bereit zur Installation.</translation></message>
<message><source>Install</source><translation>Installieren</translation></message>
<message><source>Installation progress</source><translation>Installationsfortschritt</translation></message>
<message><source>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</source><translation>Scrivel 21 wird im Ordner „Programme“ dieses Computers installiert und anschließend geöffnet.</translation></message>
<message><source>%@ KB of %@ KB</source><translation>%@ KB von %@ KB</translation></message>
<message><source>%@ MB of %@ MB</source><translation>%@ MB von %@ MB</translation></message>
<message><source>%@ GB of %@ GB</source><translation>%@ GB von %@ GB</translation></message>
<message><source>The installer of %@ needs administrator rights.</source><translation>Das Installationsprogramm von %@ benötigt Administratorrechte.</translation></message>
<message><source>Password:</source><translation>Passwort:</translation></message>
<message><source>Welcome</source><translation>Willkommen</translation></message>
<message><source>Read Me</source><translation>Bitte lesen</translation></message>
<message><source>License</source><translation>Lizenz</translation></message>
<message><source>Customization</source><translation>Anpassung</translation></message>
<message><source>Updating System</source><translation>System wird aktualisiert</translation></message>
<message><source>Summary</source><translation>Zusammenfassung</translation></message>
<message><source>Finding Scrivel</source><translation>Suche nach Scrivel</translation></message>
<message><source>Found Scrivel</source><translation>Scrivel gefunden</translation></message>
<message><source>Welcome to Scrivel 21</source><translation>Willkommen bei Scrivel 21</translation></message>
<message><source>End User License Agreement</source><translation>Endbenutzer-Lizenzvertrag</translation></message>
<message><source>Select Components</source><translation>Komponenten auswählen</translation></message>
<message><source>Thank you for using Scrivel 21</source><translation>Vielen Dank, dass Sie Scrivel 21 verwenden</translation></message>
<message><source>Finish</source><translation>Abschluss</translation></message>
<message><source>Uninstall Scrivel 21</source><translation>Scrivel 21 deinstallieren</translation></message>
<message><source>Welcome to Scrivel 21 Update</source><translation>Willkommen beim Update von Scrivel 21</translation></message>
<message><source>Penmark for Microsoft Word</source><translation>Penmark für Microsoft Word</translation></message>
<message><source>Scrivel Penmark Configuration</source><translation>Konfiguration von Scrivel Penmark</translation></message>
<message><source>Welcome to Scrivel Penmark</source><translation>Willkommen bei Scrivel Penmark</translation></message>
<message><source>Continue</source><translation>Fortfahren</translation></message>
<message><source>Next</source><translation>Weiter</translation></message>
<message><source>Done</source><translation>Fertig</translation></message>
<message><source>Exit</source><translation>Beenden</translation></message>
<message><source>Retry</source><translation>Wiederholen</translation></message>
<message><source>Scrivel 21 Installer</source><translation>Installationsprogramm von Scrivel 21</translation></message>
<message><source>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</source><translation>Beim Deinstallieren wird Scrivel Penmark von Ihrem Computer entfernt. Möchten Sie das wirklich tun?</translation></message>
<message><source>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</source><translation>Beim Deinstallieren werden alle externen Komponenten von Scrivel von Ihrem Computer entfernt. Möchten Sie das wirklich tun?</translation></message>
<message><source>Back</source><translation>Zurück</translation></message>
<message><source>%@ Customizer</source><translation>%@ Customizer</translation></message>
<message><source>%@ was removed.</source><translation>%@: erfolgreich entfernt.</translation></message>
<message><source>%@ could not be removed.</source><translation>%@: Entfernen fehlgeschlagen.</translation></message>
<message><source>%@ was installed.</source><translation>%@: erfolgreich installiert.</translation></message>
<message><source>%@ could not be installed.</source><translation>%@: Installation fehlgeschlagen.</translation></message>
<message><source>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</source><translation>Der Text „%@“ fehlt in dieser Kopie des Installationsprogramms. Laden Sie eine vollständige Kopie, um ihn zu lesen.</translation></message>
<message><source>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</source><translation>Die Liste der Komponenten fehlt in dieser Kopie des Installationsprogramms. Laden Sie eine vollständige Kopie, um Komponenten auszuwählen.</translation></message>
<message><source>Help</source><translation>Hilfe</translation></message>
<message><source>Install Log</source><translation>Installationsprotokoll</translation></message>
<message><source>The install log is empty.</source><translation>Das Installationsprotokoll ist leer.</translation></message>
<message><source>Nothing was changed.</source><translation>Es wurde nichts verändert.</translation></message>
<message><source>Steps</source><translation>Schritte</translation></message>
<message><source>Looking at what is installed on this computer…</source><translation>Es wird geprüft, was auf diesem Computer installiert ist …</translation></message>
<message><source>Search progress</source><translation>Suchfortschritt</translation></message>
<message><source>This can take a moment.</source><translation>Das kann einen Moment dauern.</translation></message>
<message><source>Please read the license agreement. To continue, you need to agree to it.</source><translation>Bitte lesen Sie den Lizenzvertrag. Um fortzufahren, müssen Sie ihm zustimmen.</translation></message>
<message><source>License agreement</source><translation>Lizenzvertrag</translation></message>
<message><source>Answer to the license agreement</source><translation>Antwort auf den Lizenzvertrag</translation></message>
<message><source>Agree</source><translation>Zustimmen</translation></message>
<message><source>Disagree</source><translation>Ablehnen</translation></message>
<message><source>Select the components that you want to use. Cleared components are removed.</source><translation>Wählen Sie die Komponenten aus, die Sie verwenden möchten. Komponenten ohne Häkchen werden entfernt.</translation></message>
<message><source>Components</source><translation>Komponenten</translation></message>
<message><source>Component</source><translation>Komponente</translation></message>
<message><source>Installed</source><translation>Installiert</translation></message>
<message><source>Description</source><translation>Beschreibung</translation></message>
<message><source>Uninstall…</source><translation>Deinstallieren …</translation></message>
<message><source>Removes all components from this computer</source><translation>Entfernt alle Komponenten von diesem Computer</translation></message>
<message><source>This is the result of the installation. The log holds every step.</source><translation>Das ist das Ergebnis der Installation. Im Protokoll steht jeder Schritt.</translation></message>
<message><source>Result of the installation</source><translation>Ergebnis der Installation</translation></message>
<message><source>This is the result for the components that you selected. The log holds every step.</source><translation>Das ist das Ergebnis für die Komponenten, die Sie ausgewählt haben. Im Protokoll steht jeder Schritt.</translation></message>
<message><source>Result of the change</source><translation>Ergebnis der Änderung</translation></message>
<message><source>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</source><translation>Alle Komponenten von Scrivel 21 außerhalb seines eigenen Ordners werden von diesem Computer entfernt: das Add-in Penmark für Microsoft Word, der Spotlight-Importer, die Dienste und die Browsererweiterung.</translation></message>
<message><source>Your libraries and documents stay where they are.</source><translation>Ihre Bibliotheken und Dokumente bleiben, wo sie sind.</translation></message>
<message><source>Update progress</source><translation>Aktualisierungsfortschritt</translation></message>
<message><source>Please leave the computer switched on and do not quit the installer until this is finished.</source><translation>Bitte lassen Sie den Computer eingeschaltet und beenden Sie das Installationsprogramm nicht, bis der Vorgang abgeschlossen ist.</translation></message>
<message><source>This is the result of the uninstallation. The log holds every step.</source><translation>Das ist das Ergebnis der Deinstallation. Im Protokoll steht jeder Schritt.</translation></message>
<message><source>Result of the uninstallation</source><translation>Ergebnis der Deinstallation</translation></message>
<message><source>Quit Microsoft Word, then click Retry.</source><translation>Beenden Sie Microsoft Word und klicken Sie dann auf „Wiederholen“.</translation></message>
<message><source>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</source><translation>Microsoft Word ist geöffnet. Seine Add-ins können nur geändert werden, solange es geschlossen ist. Sichern Sie Ihre Dokumente in Word, bevor Sie es beenden.</translation></message>
<message><source>Spotlight and Services</source><translation>Spotlight und Dienste</translation></message>
<message><source>Choose who can use the components that you have just selected.</source><translation>Wählen Sie, wer die eben ausgewählten Komponenten verwenden kann.</translation></message>
<message><source>Spotlight: find your Scrivel documents with the search of the system</source><translation>Spotlight: Ihre Scrivel-Dokumente mit der Suche des Systems finden</translation></message>
<message><source>Who can use the Spotlight importer</source><translation>Wer den Spotlight-Importer verwenden kann</translation></message>
<message><source>Only for me</source><translation>Nur für mich</translation></message>
<message><source>Goes into the Library folder of your home folder.</source><translation>Kommt in den Ordner „Library“ Ihres Benutzerordners.</translation></message>
<message><source>For all users of this computer</source><translation>Für alle Benutzer dieses Computers</translation></message>
<message><source>Goes into the computer’s Library folder. An administrator password may be asked for.</source><translation>Kommt in den Ordner „Library“ des Computers. Dafür kann das Passwort eines Administrators nötig sein.</translation></message>
<message><source>Services: use Scrivel from the Services menu of other applications</source><translation>Dienste: Scrivel über das Menü „Dienste“ anderer Programme verwenden</translation></message>
<message><source>Who can use the Services</source><translation>Wer die Dienste verwenden kann</translation></message>
<message><source>This is the result of the update, copy by copy. The log holds every step.</source><translation>Das ist das Ergebnis des Updates, Kopie für Kopie. Im Protokoll steht jeder Schritt.</translation></message>
<message><source>Result of the update</source><translation>Ergebnis des Updates</translation></message>
<message><source>There is no copy of Scrivel 21 that this update fits.</source><translation>Es gibt keine Kopie von Scrivel 21, für die dieses Update passt.</translation></message>
<message><source>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</source><translation>Auf diesem Computer wurde nichts verändert. Eine Kopie, die bereits aktuell ist oder verändert wurde, wird nicht angeboten; das Protokoll nennt jede geprüfte Kopie.</translation></message>
<message><source>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</source><translation>Das Add-in kommt in den Startordner jeder Kopie und wird geladen, wenn Word das nächste Mal geöffnet wird.</translation></message>
<message><source>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</source><translation>Diese Kopien von Microsoft Word erhalten das Add-in Penmark. Fügen Sie eine fehlende Kopie hinzu oder ändern Sie den Startordner einer Kopie.</translation></message>
<message><source>Copies of Microsoft Word</source><translation>Kopien von Microsoft Word</translation></message>
<message><source>Word</source><translation>Word</translation></message>
<message><source>Startup Folder</source><translation>Startordner</translation></message>
<message><source>Version</source><translation>Version</translation></message>
<message><source>Adds a copy of Word and its startup folder</source><translation>Fügt eine Kopie von Word und ihren Startordner hinzu</translation></message>
<message><source>Add</source><translation>Hinzufügen</translation></message>
<message><source>Removes the add-in from the selected folder and forgets the folder</source><translation>Entfernt das Add-in aus dem ausgewählten Ordner und vergisst den Ordner</translation></message>
<message><source>Remove</source><translation>Entfernen</translation></message>
<message><source>Change…</source><translation>Ändern …</translation></message>
<message><source>Chooses another startup folder for the selected copy</source><translation>Wählt einen anderen Startordner für die ausgewählte Kopie</translation></message>
<message><source>Reset</source><translation>Zurücksetzen</translation></message>
<message><source>Forgets the folder that you chose for the selected copy</source><translation>Vergisst den Ordner, den Sie für die ausgewählte Kopie gewählt haben</translation></message>
<message><source>Select your Microsoft Word startup folder</source><translation>Wählen Sie Ihren Startordner von Microsoft Word</translation></message>
<message><source>Please locate your installed copy of Microsoft Word</source><translation>Bitte wählen Sie Ihre installierte Kopie von Microsoft Word</translation></message>
<message><source>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</source><translation>Wenn Sie Word so eingestellt haben, dass es einen anderen Startordner verwendet, oder wenn Sie Word in einer anderen Sprache als Englisch verwenden, klicken Sie auf „Festlegen“, um den Ort des Startordners festzulegen.</translation></message>
<message><source>Set</source><translation>Festlegen</translation></message>
<message><source>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</source><translation>Das ausgewählte Objekt liegt anscheinend nicht in einem Installationsordner von Microsoft Word.  Bitte versuchen Sie es noch einmal.</translation></message>
<message><source>Uninstall Penmark components from the selected folder, immediately?</source><translation>Die Penmark-Komponenten jetzt sofort aus dem ausgewählten Ordner deinstallieren?</translation></message>
<message><source>Uninstall</source><translation>Deinstallieren</translation></message>
<message><source>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</source><translation>%@: Auf diesem Computer wurde weder Microsoft Word 2016 noch 2019 gefunden.</translation></message>
<message><source>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@: Das Add-in Penmark wird für die auf diesem Computer installierte Kopie von Microsoft Word 2016 oder 2019 installiert.</translation></message>
<message><source>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@: Das Add-in Penmark wird für die %d auf diesem Computer installierten Kopien von Microsoft Word 2016 oder 2019 installiert.</translation></message>
<message><source>Word Locations…</source><translation>Word-Orte …</translation></message>
<message><source>Shows where each copy of Word gets the add-in, and lets you add or change a place</source><translation>Zeigt, wo jede Kopie von Word das Add-in erhält; Orte können hinzugefügt und geändert werden</translation></message>
<message><source>Goes back to the components</source><translation>Führt zurück zu den Komponenten</translation></message>
<message><source>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</source><translation>Penmark ist das Add-in von Scrivel für Microsoft Word. Beim Schreiben fügt es Zitate aus Ihrer Bibliothek ein und erstellt das Literaturverzeichnis in dem Stil, den Sie wählen.</translation></message>
<message><source>What to do with Penmark</source><translation>Was mit Penmark geschehen soll</translation></message>
<message><source>Install Penmark</source><translation>Penmark installieren</translation></message>
<message><source>Puts the add-in into the startup folder of every copy of Word on this computer.</source><translation>Legt das Add-in in den Startordner jeder Kopie von Word auf diesem Computer.</translation></message>
<message><source>Uninstall Penmark</source><translation>Penmark deinstallieren</translation></message>
<message><source>Removes the add-in from Word. Your documents and their citations stay as they are.</source><translation>Entfernt das Add-in aus Word. Ihre Dokumente und die Zitate darin bleiben, wie sie sind.</translation></message>
<message><source>Quit Microsoft Word before you continue.</source><translation>Beenden Sie Microsoft Word, bevor Sie fortfahren.</translation></message>
<message><source>This is the result for Scrivel Penmark. The log holds every step.</source><translation>Das ist das Ergebnis für Scrivel Penmark. Im Protokoll steht jeder Schritt.</translation></message>
<message><source>Result for Scrivel Penmark</source><translation>Ergebnis für Scrivel Penmark</translation></message>
<message><source>This is the result of removing Scrivel Penmark. The log holds every step.</source><translation>Das ist das Ergebnis der Entfernung von Scrivel Penmark. Im Protokoll steht jeder Schritt.</translation></message>
<message><source>Result of removing Scrivel Penmark</source><translation>Ergebnis der Entfernung von Scrivel Penmark</translation></message>
<message><source>Show Log</source><translation>Protokoll anzeigen</translation></message>
<message><source>Installer</source><translation>Installationsprogramm</translation></message>
<message><source>Customize…</source><translation>Anpassen …</translation></message>
<message><source>Install Penmark…</source><translation>Penmark installieren …</translation></message>
<message><source>Update Installed Copies…</source><translation>Installierte Kopien aktualisieren …</translation></message>
<message><source>Microsoft Word integration</source><translation>Integration in Microsoft Word</translation></message>
<message><source>Work with your references while you write</source><translation>Beim Schreiben mit Ihren Literaturangaben arbeiten</translation></message>
<message><source>Penmark add-in</source><translation>Add-in Penmark</translation></message>
<message><source>Penmark for Microsoft Word: citations and bibliographies in your documents</source><translation>Penmark für Microsoft Word: Zitate und Literaturverzeichnisse in Ihren Dokumenten</translation></message>
<message><source>Content categories</source><translation>Inhaltskategorien</translation></message>
<message><source>Import filters for databases and library catalogues, by subject</source><translation>Importfilter für Datenbanken und Bibliothekskataloge, nach Fachgebiet</translation></message>
<message><source>Chemistry</source><translation>Chemie</translation></message>
<message><source>Import filters for chemistry</source><translation>Importfilter für Chemie</translation></message>
<message><source>Economics</source><translation>Wirtschaft</translation></message>
<message><source>Import filters for economics</source><translation>Importfilter für Wirtschaft</translation></message>
<message><source>History</source><translation>Geschichte</translation></message>
<message><source>Import filters for history</source><translation>Importfilter für Geschichte</translation></message>
<message><source>Law</source><translation>Recht</translation></message>
<message><source>Import filters for law</source><translation>Importfilter für Recht</translation></message>
<message><source>Medicine</source><translation>Medizin</translation></message>
<message><source>Import filters for medicine</source><translation>Importfilter für Medizin</translation></message>
<message><source>Physics</source><translation>Physik</translation></message>
<message><source>Import filters for physics</source><translation>Importfilter für Physik</translation></message>
<message><source>System integration</source><translation>Systemintegration</translation></message>
<message><source>Scrivel 21 in the rest of your system</source><translation>Scrivel 21 im übrigen System</translation></message>
<message><source>Spotlight importer</source><translation>Spotlight-Importer</translation></message>
<message><source>Spotlight finds the references in your libraries</source><translation>Spotlight findet die Literaturangaben in Ihren Bibliotheken</translation></message>
<message><source>Services</source><translation>Dienste</translation></message>
<message><source>Scrivel 21 commands in the Services menu of other applications</source><translation>Befehle von Scrivel 21 im Menü „Dienste“ anderer Programme</translation></message>
<message><source>Browser extension</source><translation>Browsererweiterung</translation></message>
<message><source>Tessaron for Google Chrome: collects references from web pages</source><translation>Tessaron für Google Chrome: übernimmt Literaturangaben aus Webseiten</translation></message>
<message><source>Not found</source><translation>Nicht gefunden</translation></message>
<message><source>Find</source><translation>Suchen</translation></message>
<message><source>Find Previous</source><translation>Rückwärts suchen</translation></message>
<message><source>Find Next</source><translation>Weitersuchen</translation></message>
<message><source>Close</source><translation>Schließen</translation></message>
<message><source>%@, not selected</source><translation>%@, nicht ausgewählt</translation></message>
<message><source>%@, not available</source><translation>%@, nicht verfügbar</translation></message>
<message><source>%@, selected</source><translation>%@, ausgewählt</translation></message>
<message><source>%@, partly selected</source><translation>%@, teilweise ausgewählt</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>Der Text unter %@ kann nicht gelesen werden. Laden Sie das Installationsprogramm erneut und starten Sie es von dort.</translation></message>
<message><source>Look in:</source><translation>Suchen in:</translation></message>
<message><source>Folder:</source><translation>Ordner:</translation></message>
<message><source>Application:</source><translation>Programm:</translation></message>
<message><source>Choose</source><translation>Auswählen</translation></message>
<message><source>Processing: %@</source><translation>Wird bearbeitet: %@</translation></message>
<message><source>Searching for Microsoft Word</source><translation>Microsoft Word wird gesucht</translation></message>
<message><source>%@ was left as it is.</source><translation>%@: nicht verändert.</translation></message>
<message><source>%@ is installed, as before.</source><translation>%@ ist wie zuvor installiert.</translation></message>
<message><source>%@ is not installed, as before.</source><translation>%@ ist wie zuvor nicht installiert.</translation></message>
<message><source>Administrator rights were refused.</source><translation>Administratorrechte wurden verweigert.</translation></message>
<message><source>“%@” is missing from this copy of the installer.</source><translation>„%@“ fehlt in dieser Kopie des Installationsprogramms.</translation></message>
<message><source>“%@” could not be written.</source><translation>„%@“ konnte nicht geschrieben werden.</translation></message>
<message><source>“%@” is still there.</source><translation>„%@“ ist noch vorhanden.</translation></message>
<message><source>It was not chosen who can use it.</source><translation>Es wurde nicht gewählt, wer es benutzen kann.</translation></message>
<message><source>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</source><translation>&#10;An folgendem Ort wurde eine Kopie von Scrivel gefunden:&#10;&#10;%@&#10;&#10;Möchten Sie diese Kopie aktualisieren?&#10;</translation></message>
<message><source>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</source><translation>&#10;Beim Aktualisieren einer Kopie von Scrivel an diesem Ort ist ein Fehler aufgetreten:&#10;&#10;%@&#10;&#10;Möchten Sie es noch einmal versuchen?&#10;</translation></message>
<message><source>Updating: %@</source><translation>Wird aktualisiert: %@</translation></message>
<message><source>“%@” was updated.</source><translation>„%@“ wurde aktualisiert.</translation></message>
<message><source>“%@” could not be updated.</source><translation>„%@“ konnte nicht aktualisiert werden.</translation></message>
<message><source>“%@” was left as it is.</source><translation>„%@“ wurde nicht verändert.</translation></message>
<message><source>“%@” is up to date already.</source><translation>„%@“ ist bereits aktuell.</translation></message>
<message><source>This update does not fit “%@”.</source><translation>Dieses Update passt nicht zu „%@“.</translation></message>
<message><source>The update did not take effect.</source><translation>Das Update wurde nicht wirksam.</translation></message>
<message><source>No copy of Microsoft Word was found.</source><translation>Microsoft Word wurde nicht gefunden.</translation></message>
<message><source>No copy of Microsoft Word 2016 or 2019 was found.</source><translation>Microsoft Word 2016 oder 2019 wurde nicht gefunden.</translation></message>
<message><source>Output styles</source><translation>Ausgabestile</translation></message>
<message><source>Citation styles of journals and publishers, by subject</source><translation>Zitierstile von Zeitschriften und Verlagen, nach Fachgebiet</translation></message>
<message><source>Engineering</source><translation>Ingenieurwesen</translation></message>
<message><source>Citation styles for engineering</source><translation>Zitierstile für das Ingenieurwesen</translation></message>
<message><source>Humanities</source><translation>Geisteswissenschaften</translation></message>
<message><source>Citation styles for the humanities</source><translation>Zitierstile für die Geisteswissenschaften</translation></message>
<message><source>Sciences</source><translation>Naturwissenschaften</translation></message>
<message><source>Citation styles for the sciences</source><translation>Zitierstile für die Naturwissenschaften</translation></message>
<message><source>More on this disk</source><translation>Weiteres auf diesem Volume</translation></message>
<message><source>What else comes with Scrivel 21; the wizard leaves it as it is</source><translation>Was sonst zu Scrivel 21 gehört; der Assistent verändert es nicht</translation></message>
<message><source>Read Me.txt</source><translation>Read Me.txt</translation></message>
<message><source>Notes on this version, beside the installer</source><translation>Hinweise zu dieser Version, neben dem Installationsprogramm</translation></message>
<message><source>Examples</source><translation>Beispiele</translation></message>
<message><source>A sample library; it is installed with Scrivel 21 itself</source><translation>Eine Beispielbibliothek; sie wird mit Scrivel 21 selbst installiert</translation></message>
<message><source>Uninstaller</source><translation>Deinstallationsprogramm</translation></message>
<message><source>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</source><translation>Entfernt Scrivel 21 wieder; die Taste „Deinstallieren“ dieser Seite entfernt die anderen Komponenten</translation></message>
<message><source>Handheld link</source><translation>Verbindung mit Mobilgeräten</translation></message>
<message><source>Needs a later version of this installer</source><translation>Benötigt eine neuere Version des Installationsprogramms</translation></message>
<message><source>Penmark</source><translation>Penmark</translation></message>
<message><source>Spotlight Support</source><translation>Spotlight-Unterstützung</translation></message>
<message><source>Scrivel Services</source><translation>Scrivel-Dienste</translation></message>
<message><source>Tessaron Extension</source><translation>Tessaron-Erweiterung</translation></message>
<message><source>Scrivel Content Files</source><translation>Scrivel-Inhalte</translation></message>
</context>
</TS>
