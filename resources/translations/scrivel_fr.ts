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
<message><source>Welcome</source><translation>Bienvenue</translation></message>
<message><source>Read Me</source><translation>À lire</translation></message>
<message><source>License</source><translation>Licence</translation></message>
<message><source>Customization</source><translation>Personnalisation</translation></message>
<message><source>Updating System</source><translation>Mise à jour du système</translation></message>
<message><source>Summary</source><translation>Résumé</translation></message>
<message><source>Finding Scrivel</source><translation>Recherche de Scrivel</translation></message>
<message><source>Found Scrivel</source><translation>Scrivel trouvé</translation></message>
<message><source>Welcome to Scrivel 21</source><translation>Bienvenue dans Scrivel 21</translation></message>
<message><source>End User License Agreement</source><translation>Contrat de licence de l’utilisateur final</translation></message>
<message><source>Select Components</source><translation>Sélectionner les composants</translation></message>
<message><source>Thank you for using Scrivel 21</source><translation>Merci d’utiliser Scrivel 21</translation></message>
<message><source>Finish</source><translation>Fin</translation></message>
<message><source>Uninstall Scrivel 21</source><translation>Désinstaller Scrivel 21</translation></message>
<message><source>Welcome to Scrivel 21 Update</source><translation>Bienvenue dans la mise à jour de Scrivel 21</translation></message>
<message><source>Penmark for Microsoft Word</source><translation>Penmark pour Microsoft Word</translation></message>
<message><source>Scrivel Penmark Configuration</source><translation>Configuration de Scrivel Penmark</translation></message>
<message><source>Welcome to Scrivel Penmark</source><translation>Bienvenue dans Scrivel Penmark</translation></message>
<message><source>Continue</source><translation>Continuer</translation></message>
<message><source>Next</source><translation>Suivant</translation></message>
<message><source>Done</source><translation>Terminé</translation></message>
<message><source>Exit</source><translation>Quitter</translation></message>
<message><source>Retry</source><translation>Réessayer</translation></message>
<message><source>Scrivel 21 Installer</source><translation>Programme d’installation de Scrivel 21</translation></message>
<message><source>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</source><translation>La désinstallation supprimera Scrivel Penmark de votre ordinateur. Voulez-vous vraiment continuer ?</translation></message>
<message><source>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</source><translation>La désinstallation supprimera tous les composants externes de Scrivel de votre ordinateur. Voulez-vous vraiment continuer ?</translation></message>
<message><source>Back</source><translation>Précédent</translation></message>
<message><source>%@ Customizer</source><translation>%@ Customizer</translation></message>
<message><source>%@ was removed.</source><translation>%@ : suppression réussie.</translation></message>
<message><source>%@ could not be removed.</source><translation>%@ : échec de la suppression.</translation></message>
<message><source>%@ was installed.</source><translation>%@ : installation réussie.</translation></message>
<message><source>%@ could not be installed.</source><translation>%@ : échec de l’installation.</translation></message>
<message><source>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</source><translation>Le texte « %@ » est absent de cette copie du programme d’installation. Procurez-vous une copie complète pour le lire.</translation></message>
<message><source>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</source><translation>La liste des composants est absente de cette copie du programme d’installation. Procurez-vous une copie complète pour choisir des composants.</translation></message>
<message><source>Help</source><translation>Aide</translation></message>
<message><source>Install Log</source><translation>Journal d’installation</translation></message>
<message><source>The install log is empty.</source><translation>Le journal d’installation est vide.</translation></message>
<message><source>Nothing was changed.</source><translation>Rien n’a été modifié.</translation></message>
<message><source>Steps</source><translation>Étapes</translation></message>
<message><source>Looking at what is installed on this computer…</source><translation>Examen de ce qui est installé sur cet ordinateur…</translation></message>
<message><source>Search progress</source><translation>Progression de la recherche</translation></message>
<message><source>This can take a moment.</source><translation>Cela peut prendre un moment.</translation></message>
<message><source>Please read the license agreement. To continue, you need to agree to it.</source><translation>Veuillez lire le contrat de licence. Pour continuer, vous devez l’accepter.</translation></message>
<message><source>License agreement</source><translation>Contrat de licence</translation></message>
<message><source>Answer to the license agreement</source><translation>Réponse au contrat de licence</translation></message>
<message><source>Agree</source><translation>Accepter</translation></message>
<message><source>Disagree</source><translation>Refuser</translation></message>
<message><source>Select the components that you want to use. Cleared components are removed.</source><translation>Sélectionnez les composants que vous voulez utiliser. Les composants décochés sont supprimés.</translation></message>
<message><source>Components</source><translation>Composants</translation></message>
<message><source>Component</source><translation>Composant</translation></message>
<message><source>Installed</source><translation>Installé</translation></message>
<message><source>Description</source><translation>Description</translation></message>
<message><source>Uninstall…</source><translation>Désinstaller…</translation></message>
<message><source>Removes all components from this computer</source><translation>Supprime tous les composants de cet ordinateur</translation></message>
<message><source>This is the result of the installation. The log holds every step.</source><translation>Voici le résultat de l’installation. Le journal contient chaque étape.</translation></message>
<message><source>Result of the installation</source><translation>Résultat de l’installation</translation></message>
<message><source>This is the result for the components that you selected. The log holds every step.</source><translation>Voici le résultat pour les composants que vous avez sélectionnés. Le journal contient chaque étape.</translation></message>
<message><source>Result of the change</source><translation>Résultat de la modification</translation></message>
<message><source>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</source><translation>Tous les composants de Scrivel 21 situés hors de son propre dossier seront supprimés de cet ordinateur : le complément Penmark pour Microsoft Word, l’importateur Spotlight, les Services et l’extension de navigateur.</translation></message>
<message><source>Your libraries and documents stay where they are.</source><translation>Vos bibliothèques et vos documents restent où ils sont.</translation></message>
<message><source>Update progress</source><translation>Progression de la mise à jour</translation></message>
<message><source>Please leave the computer switched on and do not quit the installer until this is finished.</source><translation>Veuillez laisser l’ordinateur allumé et ne pas quitter le programme d’installation avant la fin de l’opération.</translation></message>
<message><source>This is the result of the uninstallation. The log holds every step.</source><translation>Voici le résultat de la désinstallation. Le journal contient chaque étape.</translation></message>
<message><source>Result of the uninstallation</source><translation>Résultat de la désinstallation</translation></message>
<message><source>Quit Microsoft Word, then click Retry.</source><translation>Quittez Microsoft Word, puis cliquez sur Réessayer.</translation></message>
<message><source>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</source><translation>Microsoft Word est ouvert. Ses compléments ne peuvent être modifiés que lorsqu’il est fermé. Enregistrez vos documents dans Word avant de le quitter.</translation></message>
<message><source>Spotlight and Services</source><translation>Spotlight et Services</translation></message>
<message><source>Choose who can use the components that you have just selected.</source><translation>Choisissez qui peut utiliser les composants que vous venez de sélectionner.</translation></message>
<message><source>Spotlight: find your Scrivel documents with the search of the system</source><translation>Spotlight : retrouvez vos documents Scrivel avec la recherche du système</translation></message>
<message><source>Who can use the Spotlight importer</source><translation>Qui peut utiliser l’importateur Spotlight</translation></message>
<message><source>Only for me</source><translation>Pour moi seulement</translation></message>
<message><source>Goes into the Library folder of your home folder.</source><translation>Va dans le dossier Library de votre dossier de départ.</translation></message>
<message><source>For all users of this computer</source><translation>Pour tous les utilisateurs de cet ordinateur</translation></message>
<message><source>Goes into the computer’s Library folder. An administrator password may be asked for.</source><translation>Va dans le dossier Library de l’ordinateur. Le mot de passe d’un administrateur peut être demandé.</translation></message>
<message><source>Services: use Scrivel from the Services menu of other applications</source><translation>Services : utilisez Scrivel depuis le menu Services d’autres applications</translation></message>
<message><source>Who can use the Services</source><translation>Qui peut utiliser les Services</translation></message>
<message><source>This is the result of the update, copy by copy. The log holds every step.</source><translation>Voici le résultat de la mise à jour, copie par copie. Le journal contient chaque étape.</translation></message>
<message><source>Result of the update</source><translation>Résultat de la mise à jour</translation></message>
<message><source>There is no copy of Scrivel 21 that this update fits.</source><translation>Cette mise à jour ne convient à aucune copie de Scrivel 21.</translation></message>
<message><source>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</source><translation>Rien n’a été modifié sur cet ordinateur. Une copie déjà à jour, ou modifiée, n’est pas proposée ; le journal cite chaque copie examinée.</translation></message>
<message><source>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</source><translation>Le complément va dans le dossier de démarrage de chaque copie et sera chargé à la prochaine ouverture de Word.</translation></message>
<message><source>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</source><translation>Voici les copies de Microsoft Word qui reçoivent le complément Penmark. Ajoutez une copie manquante ou modifiez le dossier de démarrage de l’une d’elles.</translation></message>
<message><source>Copies of Microsoft Word</source><translation>Copies de Microsoft Word</translation></message>
<message><source>Word</source><translation>Word</translation></message>
<message><source>Startup Folder</source><translation>Dossier de démarrage</translation></message>
<message><source>Version</source><translation>Version</translation></message>
<message><source>Adds a copy of Word and its startup folder</source><translation>Ajoute une copie de Word et son dossier de démarrage</translation></message>
<message><source>Add</source><translation>Ajouter</translation></message>
<message><source>Removes the add-in from the selected folder and forgets the folder</source><translation>Supprime le complément du dossier sélectionné et oublie ce dossier</translation></message>
<message><source>Remove</source><translation>Supprimer</translation></message>
<message><source>Change…</source><translation>Modifier…</translation></message>
<message><source>Chooses another startup folder for the selected copy</source><translation>Choisit un autre dossier de démarrage pour la copie sélectionnée</translation></message>
<message><source>Reset</source><translation>Réinitialiser</translation></message>
<message><source>Forgets the folder that you chose for the selected copy</source><translation>Oublie le dossier que vous avez choisi pour la copie sélectionnée</translation></message>
<message><source>Select your Microsoft Word startup folder</source><translation>Sélectionnez votre dossier de démarrage de Microsoft Word</translation></message>
<message><source>Please locate your installed copy of Microsoft Word</source><translation>Veuillez indiquer où se trouve votre copie installée de Microsoft Word</translation></message>
<message><source>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</source><translation>Si vous avez configuré Word pour utiliser un autre dossier de démarrage, ou si vous utilisez une version de Word dans une autre langue que l’anglais, cliquez sur Définir pour indiquer l’emplacement du dossier de démarrage.</translation></message>
<message><source>Set</source><translation>Définir</translation></message>
<message><source>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</source><translation>L’élément choisi ne semble pas se trouver dans un dossier d’installation de Microsoft Word.  Veuillez réessayer.</translation></message>
<message><source>Uninstall Penmark components from the selected folder, immediately?</source><translation>Désinstaller immédiatement les composants Penmark du dossier sélectionné ?</translation></message>
<message><source>Uninstall</source><translation>Désinstaller</translation></message>
<message><source>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</source><translation>%@ : ni Microsoft Word 2016 ni Microsoft Word 2019 n’a été trouvé sur cet ordinateur.</translation></message>
<message><source>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@ : le complément Penmark sera installé pour la copie de Microsoft Word 2016 ou 2019 qui se trouve sur cet ordinateur.</translation></message>
<message><source>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@ : le complément Penmark sera installé pour les %d copies de Microsoft Word 2016 ou 2019 qui se trouvent sur cet ordinateur.</translation></message>
<message><source>Word Locations…</source><translation>Emplacements de Word…</translation></message>
<message><source>Shows where each copy of Word gets the add-in, and lets you add or change a place</source><translation>Montre où chaque copie de Word reçoit le complément et permet d’ajouter ou de modifier un emplacement</translation></message>
<message><source>Goes back to the components</source><translation>Revient aux composants</translation></message>
<message><source>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</source><translation>Penmark est le complément de Scrivel pour Microsoft Word. Pendant que vous écrivez, il insère des citations de votre bibliothèque et compose la bibliographie dans le style de votre choix.</translation></message>
<message><source>What to do with Penmark</source><translation>Que faire de Penmark</translation></message>
<message><source>Install Penmark</source><translation>Installer Penmark</translation></message>
<message><source>Puts the add-in into the startup folder of every copy of Word on this computer.</source><translation>Met le complément dans le dossier de démarrage de chaque copie de Word sur cet ordinateur.</translation></message>
<message><source>Uninstall Penmark</source><translation>Désinstaller Penmark</translation></message>
<message><source>Removes the add-in from Word. Your documents and their citations stay as they are.</source><translation>Supprime le complément de Word. Vos documents et leurs citations restent tels quels.</translation></message>
<message><source>Quit Microsoft Word before you continue.</source><translation>Quittez Microsoft Word avant de continuer.</translation></message>
<message><source>This is the result for Scrivel Penmark. The log holds every step.</source><translation>Voici le résultat pour Scrivel Penmark. Le journal contient chaque étape.</translation></message>
<message><source>Result for Scrivel Penmark</source><translation>Résultat pour Scrivel Penmark</translation></message>
<message><source>This is the result of removing Scrivel Penmark. The log holds every step.</source><translation>Voici le résultat de la suppression de Scrivel Penmark. Le journal contient chaque étape.</translation></message>
<message><source>Result of removing Scrivel Penmark</source><translation>Résultat de la suppression de Scrivel Penmark</translation></message>
<message><source>Show Log</source><translation>Afficher le journal</translation></message>
<message><source>Installer</source><translation>Programme d’installation</translation></message>
<message><source>Customize…</source><translation>Personnaliser…</translation></message>
<message><source>Install Penmark…</source><translation>Installer Penmark…</translation></message>
<message><source>Update Installed Copies…</source><translation>Mettre à jour les copies installées…</translation></message>
<message><source>Microsoft Word integration</source><translation>Intégration à Microsoft Word</translation></message>
<message><source>Work with your references while you write</source><translation>Travaillez avec vos références pendant que vous écrivez</translation></message>
<message><source>Penmark add-in</source><translation>Complément Penmark</translation></message>
<message><source>Penmark for Microsoft Word: citations and bibliographies in your documents</source><translation>Penmark pour Microsoft Word : citations et bibliographies dans vos documents</translation></message>
<message><source>Content categories</source><translation>Catégories de contenu</translation></message>
<message><source>Import filters for databases and library catalogues, by subject</source><translation>Filtres d’importation pour bases de données et catalogues de bibliothèques, par domaine</translation></message>
<message><source>Chemistry</source><translation>Chimie</translation></message>
<message><source>Import filters for chemistry</source><translation>Filtres d’importation pour la chimie</translation></message>
<message><source>Economics</source><translation>Économie</translation></message>
<message><source>Import filters for economics</source><translation>Filtres d’importation pour l’économie</translation></message>
<message><source>History</source><translation>Histoire</translation></message>
<message><source>Import filters for history</source><translation>Filtres d’importation pour l’histoire</translation></message>
<message><source>Law</source><translation>Droit</translation></message>
<message><source>Import filters for law</source><translation>Filtres d’importation pour le droit</translation></message>
<message><source>Medicine</source><translation>Médecine</translation></message>
<message><source>Import filters for medicine</source><translation>Filtres d’importation pour la médecine</translation></message>
<message><source>Physics</source><translation>Physique</translation></message>
<message><source>Import filters for physics</source><translation>Filtres d’importation pour la physique</translation></message>
<message><source>System integration</source><translation>Intégration au système</translation></message>
<message><source>Scrivel 21 in the rest of your system</source><translation>Scrivel 21 dans le reste de votre système</translation></message>
<message><source>Spotlight importer</source><translation>Importateur Spotlight</translation></message>
<message><source>Spotlight finds the references in your libraries</source><translation>Spotlight trouve les références dans vos bibliothèques</translation></message>
<message><source>Services</source><translation>Services</translation></message>
<message><source>Scrivel 21 commands in the Services menu of other applications</source><translation>Commandes de Scrivel 21 dans le menu Services d’autres applications</translation></message>
<message><source>Browser extension</source><translation>Extension de navigateur</translation></message>
<message><source>Tessaron for Google Chrome: collects references from web pages</source><translation>Tessaron pour Google Chrome : recueille des références dans les pages web</translation></message>
<message><source>Not found</source><translation>Introuvable</translation></message>
<message><source>Find</source><translation>Rechercher</translation></message>
<message><source>Find Previous</source><translation>Rechercher le précédent</translation></message>
<message><source>Find Next</source><translation>Rechercher le suivant</translation></message>
<message><source>Close</source><translation>Fermer</translation></message>
<message><source>%@, not selected</source><translation>%@, non sélectionné</translation></message>
<message><source>%@, not available</source><translation>%@, non disponible</translation></message>
<message><source>%@, selected</source><translation>%@, sélectionné</translation></message>
<message><source>%@, partly selected</source><translation>%@, partiellement sélectionné</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>Le texte %@ ne peut pas être lu. Téléchargez à nouveau le programme d’installation et lancez-le.</translation></message>
<message><source>Look in:</source><translation>Rechercher dans :</translation></message>
<message><source>Folder:</source><translation>Dossier :</translation></message>
<message><source>Application:</source><translation>Application :</translation></message>
<message><source>Choose</source><translation>Choisir</translation></message>
<message><source>Processing: %@</source><translation>Traitement : %@</translation></message>
<message><source>Searching for Microsoft Word</source><translation>Recherche de Microsoft Word</translation></message>
<message><source>%@ was left as it is.</source><translation>%@ : laissé tel quel.</translation></message>
<message><source>%@ is installed, as before.</source><translation>%@ : toujours installé.</translation></message>
<message><source>%@ is not installed, as before.</source><translation>%@ : toujours non installé.</translation></message>
<message><source>Administrator rights were refused.</source><translation>Les droits d’administrateur ont été refusés.</translation></message>
<message><source>“%@” is missing from this copy of the installer.</source><translation>« %@ » manque dans cette copie du programme d’installation.</translation></message>
<message><source>“%@” could not be written.</source><translation>Impossible d’écrire « %@ ».</translation></message>
<message><source>“%@” is still there.</source><translation>« %@ » est toujours là.</translation></message>
<message><source>It was not chosen who can use it.</source><translation>Il n’a pas été choisi qui peut l’utiliser.</translation></message>
<message><source>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</source><translation>&#10;Une copie de Scrivel a été trouvée à cet emplacement :&#10;&#10;%@&#10;&#10;Voulez-vous mettre à jour cette copie ?&#10;</translation></message>
<message><source>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</source><translation>&#10;Une erreur s’est produite lors de la mise à jour d’une copie de Scrivel à cet emplacement :&#10;&#10;%@&#10;&#10;Voulez-vous réessayer ?&#10;</translation></message>
<message><source>Updating: %@</source><translation>Mise à jour : %@</translation></message>
<message><source>“%@” was updated.</source><translation>« %@ » a été mis à jour.</translation></message>
<message><source>“%@” could not be updated.</source><translation>« %@ » n’a pas pu être mis à jour.</translation></message>
<message><source>“%@” was left as it is.</source><translation>« %@ » a été laissé tel quel.</translation></message>
<message><source>“%@” is up to date already.</source><translation>« %@ » est déjà à jour.</translation></message>
<message><source>This update does not fit “%@”.</source><translation>Cette mise à jour ne convient pas à « %@ ».</translation></message>
<message><source>The update did not take effect.</source><translation>La mise à jour n’a pas pris effet.</translation></message>
<message><source>No copy of Microsoft Word was found.</source><translation>Aucune copie de Microsoft Word n’a été trouvée.</translation></message>
<message><source>No copy of Microsoft Word 2016 or 2019 was found.</source><translation>Aucune copie de Microsoft Word 2016 ou 2019 n’a été trouvée.</translation></message>
<message><source>Output styles</source><translation>Styles de sortie</translation></message>
<message><source>Citation styles of journals and publishers, by subject</source><translation>Styles de citation des revues et des éditeurs, par sujet</translation></message>
<message><source>Engineering</source><translation>Ingénierie</translation></message>
<message><source>Citation styles for engineering</source><translation>Styles de citation pour l’ingénierie</translation></message>
<message><source>Humanities</source><translation>Sciences humaines</translation></message>
<message><source>Citation styles for the humanities</source><translation>Styles de citation pour les sciences humaines</translation></message>
<message><source>Sciences</source><translation>Sciences</translation></message>
<message><source>Citation styles for the sciences</source><translation>Styles de citation pour les sciences</translation></message>
<message><source>More on this disk</source><translation>Autres éléments de ce disque</translation></message>
<message><source>What else comes with Scrivel 21; the wizard leaves it as it is</source><translation>Ce qui accompagne aussi Scrivel 21 ; l’assistant n’y touche pas</translation></message>
<message><source>Read Me.txt</source><translation>Read Me.txt</translation></message>
<message><source>Notes on this version, beside the installer</source><translation>Notes sur cette version, à côté du programme d’installation</translation></message>
<message><source>Examples</source><translation>Exemples</translation></message>
<message><source>A sample library; it is installed with Scrivel 21 itself</source><translation>Une bibliothèque d’exemple ; elle est installée avec Scrivel 21</translation></message>
<message><source>Uninstaller</source><translation>Programme de désinstallation</translation></message>
<message><source>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</source><translation>Supprime Scrivel 21 ; le bouton Désinstaller de cette page supprime les autres composants</translation></message>
<message><source>Handheld link</source><translation>Liaison avec appareils mobiles</translation></message>
<message><source>Needs a later version of this installer</source><translation>Nécessite une version plus récente du programme d’installation</translation></message>
<message><source>Penmark</source><translation>Penmark</translation></message>
<message><source>Spotlight Support</source><translation>Prise en charge de Spotlight</translation></message>
<message><source>Scrivel Services</source><translation>Services de Scrivel</translation></message>
<message><source>Tessaron Extension</source><translation>Extension Tessaron</translation></message>
<message><source>Scrivel Content Files</source><translation>Fichiers de contenu de Scrivel</translation></message>
</context>
</TS>
