<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context><name>Scrivel</name>
<message><source>Install %@</source><translation>Installer %@</translation></message>
<message><source>Extracting %@…</source><translation>Extraction de %@…</translation></message>
<message><source>Installing %@ to the Applications folder…</source><translation>Installation de %@ dans le dossier Applications…</translation></message>
<message><source>Launching %@ for the first time…</source><translation>Premier lancement de %@…</translation></message>
<message><source>Canceling…</source><translation>Annulation…</translation></message>
<message><source>Cancel</source><translation>Annuler</translation></message>
<message><source>Unable to retreived required files for %@ installation.</source><translation>Impossible de récupérer les fichiers requis pour l’installation de %@.</translation></message>
<message><source>Please try again later.</source><translation>Veuillez réessayer ultérieurement.</translation></message>
<message><source>OK</source><translation>OK</translation></message>
<message><source>Scrivel and Microsoft Word cannot be open during %@ installation.</source><translation>Scrivel et Microsoft Word ne doivent pas être ouverts pendant l’installation de %@.</translation></message>
<message><source>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</source><translation>Quittez Scrivel et Microsoft Word, puis cliquez sur le bouton OK pour continuer, ou cliquez sur le bouton Quitter le programme d’installation pour quitter ce programme.</translation></message>
<message><source>Quit Installer</source><translation>Quitter le programme d’installation</translation></message>
<message><source>Would you like to overwrite the %@ at /Applications/%@?</source><translation>Voulez-vous remplacer %@ à l’emplacement /Applications/%@ ?</translation></message>
<message><source>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</source><translation>Vous êtes sur le point d’installer %@ version %@, mais la version %@ est déjà installée. Cette opération est irréversible.</translation></message>
<message><source>No</source><translation>Non</translation></message>
<message><source>Yes</source><translation>Oui</translation></message>
<message><source>Ready to install.</source><translation>Prêt pour l’installation.</translation></message>
<message><source>Install</source><translation>Installer</translation></message>
<message><source>Installation progress</source><translation>Progression de l’installation</translation></message>
<message><source>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</source><translation>Scrivel 21 sera installé dans le dossier Applications de cet ordinateur, puis ouvert.</translation></message>
<message><source>%@ KB of %@ KB</source><translation>%@ Ko sur %@ Ko</translation></message>
<message><source>%@ MB of %@ MB</source><translation>%@ Mo sur %@ Mo</translation></message>
<message><source>%@ GB of %@ GB</source><translation>%@ Go sur %@ Go</translation></message>
<message><source>The installer of %@ needs administrator rights.</source><translation>Le programme d’installation de %@ nécessite des droits d’administrateur.</translation></message>
<message><source>Password:</source><translation>Mot de passe :</translation></message>
<message><source>Find</source><translation>Rechercher</translation></message>
<message><source>Find Next</source><translation>Rechercher le suivant</translation></message>
<message><source>Find Previous</source><translation>Rechercher le précédent</translation></message>
<message><source>Not found</source><translation>Introuvable</translation></message>
<message><source>Close</source><translation>Fermer</translation></message>
<message><source>Look in:</source><translation>Rechercher dans :</translation></message>
<message><source>Folder:</source><translation>Dossier :</translation></message>
<message><source>Application:</source><translation>Application :</translation></message>
<message><source>Choose</source><translation>Choisir</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>Le texte %@ ne peut pas être lu. Téléchargez à nouveau le programme d’installation et lancez-le.</translation></message>
<message><source>%@, selected</source><translation>%@, sélectionné</translation></message>
<message><source>%@, not selected</source><translation>%@, non sélectionné</translation></message>
<message><source>%@, partly selected</source><translation>%@, partiellement sélectionné</translation></message>
<message><source>%@, not available</source><translation>%@, non disponible</translation></message>
</context>
</TS>
