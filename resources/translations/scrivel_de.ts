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
<message><source>Find</source><translation>Suchen</translation></message>
<message><source>Find Next</source><translation>Weitersuchen</translation></message>
<message><source>Find Previous</source><translation>Rückwärts suchen</translation></message>
<message><source>Not found</source><translation>Nicht gefunden</translation></message>
<message><source>Close</source><translation>Schließen</translation></message>
<message><source>Look in:</source><translation>Suchen in:</translation></message>
<message><source>Folder:</source><translation>Ordner:</translation></message>
<message><source>Application:</source><translation>Programm:</translation></message>
<message><source>Choose</source><translation>Auswählen</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>Der Text unter %@ kann nicht gelesen werden. Laden Sie das Installationsprogramm erneut und starten Sie es von dort.</translation></message>
<message><source>%@, selected</source><translation>%@, ausgewählt</translation></message>
<message><source>%@, not selected</source><translation>%@, nicht ausgewählt</translation></message>
<message><source>%@, partly selected</source><translation>%@, teilweise ausgewählt</translation></message>
<message><source>%@, not available</source><translation>%@, nicht verfügbar</translation></message>
</context>
</TS>
