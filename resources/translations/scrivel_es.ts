<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context><name>Scrivel</name>
<message><source>Install %@</source><translation>Instalar %@</translation></message>
<message><source>Extracting %@…</source><translation>Extrayendo %@…</translation></message>
<message><source>Installing %@ to the Applications folder…</source><translation>Instalando %@ en la carpeta Aplicaciones…</translation></message>
<message><source>Launching %@ for the first time…</source><translation>Iniciando %@ por primera vez…</translation></message>
<message><source>Canceling…</source><translation>Cancelando…</translation></message>
<message><source>Cancel</source><translation>Cancelar</translation></message>
<message><source>Unable to retreived required files for %@ installation.</source><translation>No se han podido obtener los archivos necesarios para instalar %@.</translation></message>
<message><source>Please try again later.</source><translation>Inténtelo de nuevo más tarde.</translation></message>
<message><source>OK</source><translation>Aceptar</translation></message>
<message><source>Scrivel and Microsoft Word cannot be open during %@ installation.</source><translation>Scrivel y Microsoft Word no pueden estar abiertos durante la instalación de %@.</translation></message>
<message><source>Please quit Scrivel and Microsoft Word and click the OK button to continue, or click the Quit Installer button to quit this installer.</source><translation>Salga de Scrivel y Microsoft Word y haga clic en el botón Aceptar para continuar, o haga clic en el botón Salir del instalador para salir de este instalador.</translation></message>
<message><source>Quit Installer</source><translation>Salir del instalador</translation></message>
<message><source>Would you like to overwrite the %@ at /Applications/%@?</source><translation>¿Desea sobrescribir %@ en /Applications/%@?</translation></message>
<message><source>You are about to install %@ version %@, but version %@ is already installed.  This cannot be undone.</source><translation>Está a punto de instalar %@ versión %@, pero la versión %@ ya está instalada. Esta acción no se puede deshacer.</translation></message>
<message><source>No</source><translation>No</translation></message>
<message><source>Yes</source><translation>Sí</translation></message>
<message><source>Ready to install.</source><translation>Todo listo para instalar.</translation></message>
<message><source>Install</source><translation>Instalar</translation></message>
<message><source>Installation progress</source><translation>Progreso de la instalación</translation></message>
<message><source>Scrivel 21 will be installed in the Applications folder of this computer and opened when it is ready.</source><translation>Scrivel 21 se instalará en la carpeta Aplicaciones de este equipo y se abrirá cuando esté listo.</translation></message>
<message><source>%@ KB of %@ KB</source><translation>%@ KB de %@ KB</translation></message>
<message><source>%@ MB of %@ MB</source><translation>%@ MB de %@ MB</translation></message>
<message><source>%@ GB of %@ GB</source><translation>%@ GB de %@ GB</translation></message>
<message><source>The installer of %@ needs administrator rights.</source><translation>El instalador de %@ necesita derechos de administrador.</translation></message>
<message><source>Password:</source><translation>Contraseña:</translation></message>
<message><source>Welcome</source><translation>Bienvenida</translation></message>
<message><source>Read Me</source><translation>Léame</translation></message>
<message><source>License</source><translation>Licencia</translation></message>
<message><source>Customization</source><translation>Personalización</translation></message>
<message><source>Updating System</source><translation>Actualización del sistema</translation></message>
<message><source>Summary</source><translation>Resumen</translation></message>
<message><source>Finding Scrivel</source><translation>Búsqueda de Scrivel</translation></message>
<message><source>Found Scrivel</source><translation>Scrivel encontrado</translation></message>
<message><source>Welcome to Scrivel 21</source><translation>Bienvenido a Scrivel 21</translation></message>
<message><source>End User License Agreement</source><translation>Contrato de licencia de usuario final</translation></message>
<message><source>Select Components</source><translation>Seleccionar componentes</translation></message>
<message><source>Thank you for using Scrivel 21</source><translation>Gracias por usar Scrivel 21</translation></message>
<message><source>Finish</source><translation>Finalización</translation></message>
<message><source>Uninstall Scrivel 21</source><translation>Desinstalar Scrivel 21</translation></message>
<message><source>Welcome to Scrivel 21 Update</source><translation>Bienvenido a la actualización de Scrivel 21</translation></message>
<message><source>Penmark for Microsoft Word</source><translation>Penmark para Microsoft Word</translation></message>
<message><source>Scrivel Penmark Configuration</source><translation>Configuración de Scrivel Penmark</translation></message>
<message><source>Welcome to Scrivel Penmark</source><translation>Bienvenido a Scrivel Penmark</translation></message>
<message><source>Continue</source><translation>Continuar</translation></message>
<message><source>Next</source><translation>Siguiente</translation></message>
<message><source>Done</source><translation>Listo</translation></message>
<message><source>Exit</source><translation>Salir</translation></message>
<message><source>Retry</source><translation>Reintentar</translation></message>
<message><source>Scrivel 21 Installer</source><translation>Instalador de Scrivel 21</translation></message>
<message><source>Uninstall will remove Scrivel Penmark from your computer.  Are you sure you want to do this?</source><translation>La desinstalación quitará Scrivel Penmark de su equipo. ¿Está seguro de que desea hacerlo?</translation></message>
<message><source>Uninstall will remove all external Scrivel components from your computer.  Are you sure you want to do this?</source><translation>La desinstalación quitará de su equipo todos los componentes externos de Scrivel. ¿Está seguro de que desea hacerlo?</translation></message>
<message><source>Back</source><translation>Atrás</translation></message>
<message><source>%@ Customizer</source><translation>%@ Customizer</translation></message>
<message><source>%@ was removed.</source><translation>%@: eliminación correcta.</translation></message>
<message><source>%@ could not be removed.</source><translation>%@: la eliminación ha fallado.</translation></message>
<message><source>%@ was installed.</source><translation>%@: instalación correcta.</translation></message>
<message><source>%@ could not be installed.</source><translation>%@: la instalación ha fallado.</translation></message>
<message><source>The text “%@” is missing from this copy of the installer. Get a complete copy to read it.</source><translation>Falta el texto «%@» en esta copia del instalador. Obtenga una copia completa para leerlo.</translation></message>
<message><source>The list of components is missing from this copy of the installer. Get a complete copy to choose components.</source><translation>Falta la lista de componentes en esta copia del instalador. Obtenga una copia completa para elegir componentes.</translation></message>
<message><source>Help</source><translation>Ayuda</translation></message>
<message><source>Install Log</source><translation>Registro de instalación</translation></message>
<message><source>The install log is empty.</source><translation>El registro de instalación está vacío.</translation></message>
<message><source>Nothing was changed.</source><translation>No se ha cambiado nada.</translation></message>
<message><source>Steps</source><translation>Pasos</translation></message>
<message><source>Looking at what is installed on this computer…</source><translation>Examinando lo que está instalado en este equipo…</translation></message>
<message><source>Search progress</source><translation>Progreso de la búsqueda</translation></message>
<message><source>This can take a moment.</source><translation>Esto puede tardar un momento.</translation></message>
<message><source>Please read the license agreement. To continue, you need to agree to it.</source><translation>Lea el contrato de licencia. Para continuar, debe aceptarlo.</translation></message>
<message><source>License agreement</source><translation>Contrato de licencia</translation></message>
<message><source>Answer to the license agreement</source><translation>Respuesta al contrato de licencia</translation></message>
<message><source>Agree</source><translation>Acepto</translation></message>
<message><source>Disagree</source><translation>No acepto</translation></message>
<message><source>Select the components that you want to use. Cleared components are removed.</source><translation>Seleccione los componentes que quiera usar. Los componentes desmarcados se quitan.</translation></message>
<message><source>Components</source><translation>Componentes</translation></message>
<message><source>Component</source><translation>Componente</translation></message>
<message><source>Installed</source><translation>Instalado</translation></message>
<message><source>Description</source><translation>Descripción</translation></message>
<message><source>Uninstall…</source><translation>Desinstalar…</translation></message>
<message><source>Removes all components from this computer</source><translation>Quita todos los componentes de este equipo</translation></message>
<message><source>This is the result of the installation. The log holds every step.</source><translation>Este es el resultado de la instalación. El registro contiene cada paso.</translation></message>
<message><source>Result of the installation</source><translation>Resultado de la instalación</translation></message>
<message><source>This is the result for the components that you selected. The log holds every step.</source><translation>Este es el resultado de los componentes que ha seleccionado. El registro contiene cada paso.</translation></message>
<message><source>Result of the change</source><translation>Resultado del cambio</translation></message>
<message><source>All components of Scrivel 21 outside its own folder will be removed from this computer: the Penmark add-in for Microsoft Word, the Spotlight importer, the Services and the browser extension.</source><translation>Se quitarán de este equipo todos los componentes de Scrivel 21 que están fuera de su propia carpeta: el complemento Penmark para Microsoft Word, el importador de Spotlight, los Servicios y la extensión del navegador.</translation></message>
<message><source>Your libraries and documents stay where they are.</source><translation>Sus bibliotecas y documentos se quedan donde están.</translation></message>
<message><source>Update progress</source><translation>Progreso de la actualización</translation></message>
<message><source>Please leave the computer switched on and do not quit the installer until this is finished.</source><translation>Deje el equipo encendido y no salga del instalador hasta que haya terminado.</translation></message>
<message><source>This is the result of the uninstallation. The log holds every step.</source><translation>Este es el resultado de la desinstalación. El registro contiene cada paso.</translation></message>
<message><source>Result of the uninstallation</source><translation>Resultado de la desinstalación</translation></message>
<message><source>Quit Microsoft Word, then click Retry.</source><translation>Salga de Microsoft Word y haga clic en Reintentar.</translation></message>
<message><source>Microsoft Word is open. Its add-ins can only be changed while it is closed. Save your documents in Word before you quit it.</source><translation>Microsoft Word está abierto. Sus complementos solo se pueden cambiar mientras está cerrado. Guarde sus documentos en Word antes de salir.</translation></message>
<message><source>Spotlight and Services</source><translation>Spotlight y Servicios</translation></message>
<message><source>Choose who can use the components that you have just selected.</source><translation>Elija quién puede usar los componentes que acaba de seleccionar.</translation></message>
<message><source>Spotlight: find your Scrivel documents with the search of the system</source><translation>Spotlight: encuentre sus documentos de Scrivel con la búsqueda del sistema</translation></message>
<message><source>Who can use the Spotlight importer</source><translation>Quién puede usar el importador de Spotlight</translation></message>
<message><source>Only for me</source><translation>Solo para mí</translation></message>
<message><source>Goes into the Library folder of your home folder.</source><translation>Va a la carpeta Library de su carpeta de inicio.</translation></message>
<message><source>For all users of this computer</source><translation>Para todos los usuarios de este equipo</translation></message>
<message><source>Goes into the computer’s Library folder. An administrator password may be asked for.</source><translation>Va a la carpeta Library del equipo. Es posible que se pida la contraseña de un administrador.</translation></message>
<message><source>Services: use Scrivel from the Services menu of other applications</source><translation>Servicios: use Scrivel desde el menú Servicios de otras aplicaciones</translation></message>
<message><source>Who can use the Services</source><translation>Quién puede usar los Servicios</translation></message>
<message><source>This is the result of the update, copy by copy. The log holds every step.</source><translation>Este es el resultado de la actualización, copia por copia. El registro contiene cada paso.</translation></message>
<message><source>Result of the update</source><translation>Resultado de la actualización</translation></message>
<message><source>There is no copy of Scrivel 21 that this update fits.</source><translation>No hay ninguna copia de Scrivel 21 a la que corresponda esta actualización.</translation></message>
<message><source>Nothing was changed on this computer. A copy that is already up to date, or that was altered, is not offered; the log names every copy that was looked at.</source><translation>No se ha cambiado nada en este equipo. No se ofrece una copia que ya está al día o que se ha modificado; el registro menciona cada copia examinada.</translation></message>
<message><source>The add-in goes into the startup folder of each copy and is loaded when Word is opened the next time.</source><translation>El complemento va a la carpeta de inicio de cada copia y se carga la próxima vez que se abre Word.</translation></message>
<message><source>These are the copies of Microsoft Word that get the Penmark add-in. Add a copy that is missing, or change the startup folder of one.</source><translation>Estas son las copias de Microsoft Word que reciben el complemento Penmark. Añada una copia que falte o cambie la carpeta de inicio de alguna de ellas.</translation></message>
<message><source>Copies of Microsoft Word</source><translation>Copias de Microsoft Word</translation></message>
<message><source>Word</source><translation>Word</translation></message>
<message><source>Startup Folder</source><translation>Carpeta de inicio</translation></message>
<message><source>Version</source><translation>Versión</translation></message>
<message><source>Adds a copy of Word and its startup folder</source><translation>Añade una copia de Word y su carpeta de inicio</translation></message>
<message><source>Add</source><translation>Añadir</translation></message>
<message><source>Removes the add-in from the selected folder and forgets the folder</source><translation>Quita el complemento de la carpeta seleccionada y olvida la carpeta</translation></message>
<message><source>Remove</source><translation>Quitar</translation></message>
<message><source>Change…</source><translation>Cambiar…</translation></message>
<message><source>Chooses another startup folder for the selected copy</source><translation>Elige otra carpeta de inicio para la copia seleccionada</translation></message>
<message><source>Reset</source><translation>Restablecer</translation></message>
<message><source>Forgets the folder that you chose for the selected copy</source><translation>Olvida la carpeta que eligió para la copia seleccionada</translation></message>
<message><source>Select your Microsoft Word startup folder</source><translation>Seleccione su carpeta de inicio de Microsoft Word</translation></message>
<message><source>Please locate your installed copy of Microsoft Word</source><translation>Indique dónde está su copia instalada de Microsoft Word</translation></message>
<message><source>If you have configured Word to use a different Startup Folder, Or you are using a non-English Language version of Word, Click 'Set' to set the Startup Folder location.</source><translation>Si ha configurado Word para usar otra carpeta de inicio, o si usa una versión de Word en un idioma distinto del inglés, haga clic en Definir para indicar la ubicación de la carpeta de inicio.</translation></message>
<message><source>Set</source><translation>Definir</translation></message>
<message><source>The item you picked does not seem to be in a Microsoft Word installation directory.  Please try again.</source><translation>El elemento elegido no parece estar en una carpeta de instalación de Microsoft Word.  Inténtelo de nuevo.</translation></message>
<message><source>Uninstall Penmark components from the selected folder, immediately?</source><translation>¿Desinstalar inmediatamente los componentes de Penmark de la carpeta seleccionada?</translation></message>
<message><source>Uninstall</source><translation>Desinstalar</translation></message>
<message><source>The %@ could not find Microsoft Word 2016 nor 2019 installed on this computer.</source><translation>%@: no se ha encontrado Microsoft Word 2016 ni 2019 en este equipo.</translation></message>
<message><source>The %@ will install the Penmark add-in for the instance of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@: el complemento Penmark se instalará para la copia de Microsoft Word 2016 o 2019 de este equipo.</translation></message>
<message><source>The %@ will install the Penmark add-in for the %d instances of Microsoft Word 2016 or 2019 installed on this computer.</source><translation>%@: el complemento Penmark se instalará para las %d copias de Microsoft Word 2016 o 2019 de este equipo.</translation></message>
<message><source>Word Locations…</source><translation>Ubicaciones de Word…</translation></message>
<message><source>Shows where each copy of Word gets the add-in, and lets you add or change a place</source><translation>Muestra dónde recibe el complemento cada copia de Word y permite añadir o cambiar una ubicación</translation></message>
<message><source>Goes back to the components</source><translation>Vuelve a los componentes</translation></message>
<message><source>Penmark is the add-in of Scrivel for Microsoft Word. While you write, it inserts citations from your library and builds the bibliography in the style that you choose.</source><translation>Penmark es el complemento de Scrivel para Microsoft Word. Mientras escribe, inserta citas de su biblioteca y crea la bibliografía en el estilo que usted elija.</translation></message>
<message><source>What to do with Penmark</source><translation>Qué hacer con Penmark</translation></message>
<message><source>Install Penmark</source><translation>Instalar Penmark</translation></message>
<message><source>Puts the add-in into the startup folder of every copy of Word on this computer.</source><translation>Pone el complemento en la carpeta de inicio de cada copia de Word de este equipo.</translation></message>
<message><source>Uninstall Penmark</source><translation>Desinstalar Penmark</translation></message>
<message><source>Removes the add-in from Word. Your documents and their citations stay as they are.</source><translation>Quita el complemento de Word. Sus documentos y las citas que contienen se quedan como están.</translation></message>
<message><source>Quit Microsoft Word before you continue.</source><translation>Salga de Microsoft Word antes de continuar.</translation></message>
<message><source>This is the result for Scrivel Penmark. The log holds every step.</source><translation>Este es el resultado de Scrivel Penmark. El registro contiene cada paso.</translation></message>
<message><source>Result for Scrivel Penmark</source><translation>Resultado de Scrivel Penmark</translation></message>
<message><source>This is the result of removing Scrivel Penmark. The log holds every step.</source><translation>Este es el resultado de la eliminación de Scrivel Penmark. El registro contiene cada paso.</translation></message>
<message><source>Result of removing Scrivel Penmark</source><translation>Resultado de la eliminación de Scrivel Penmark</translation></message>
<message><source>Show Log</source><translation>Mostrar registro</translation></message>
<message><source>Installer</source><translation>Instalador</translation></message>
<message><source>Customize…</source><translation>Personalizar…</translation></message>
<message><source>Install Penmark…</source><translation>Instalar Penmark…</translation></message>
<message><source>Update Installed Copies…</source><translation>Actualizar copias instaladas…</translation></message>
<message><source>Microsoft Word integration</source><translation>Integración con Microsoft Word</translation></message>
<message><source>Work with your references while you write</source><translation>Trabaje con sus referencias mientras escribe</translation></message>
<message><source>Penmark add-in</source><translation>Complemento Penmark</translation></message>
<message><source>Penmark for Microsoft Word: citations and bibliographies in your documents</source><translation>Penmark para Microsoft Word: citas y bibliografías en sus documentos</translation></message>
<message><source>Content categories</source><translation>Categorías de contenido</translation></message>
<message><source>Import filters for databases and library catalogues, by subject</source><translation>Filtros de importación para bases de datos y catálogos de bibliotecas, por especialidad</translation></message>
<message><source>Chemistry</source><translation>Química</translation></message>
<message><source>Import filters for chemistry</source><translation>Filtros de importación para química</translation></message>
<message><source>Economics</source><translation>Economía</translation></message>
<message><source>Import filters for economics</source><translation>Filtros de importación para economía</translation></message>
<message><source>History</source><translation>Historia</translation></message>
<message><source>Import filters for history</source><translation>Filtros de importación para historia</translation></message>
<message><source>Law</source><translation>Derecho</translation></message>
<message><source>Import filters for law</source><translation>Filtros de importación para derecho</translation></message>
<message><source>Medicine</source><translation>Medicina</translation></message>
<message><source>Import filters for medicine</source><translation>Filtros de importación para medicina</translation></message>
<message><source>Physics</source><translation>Física</translation></message>
<message><source>Import filters for physics</source><translation>Filtros de importación para física</translation></message>
<message><source>System integration</source><translation>Integración con el sistema</translation></message>
<message><source>Scrivel 21 in the rest of your system</source><translation>Scrivel 21 en el resto de su sistema</translation></message>
<message><source>Spotlight importer</source><translation>Importador de Spotlight</translation></message>
<message><source>Spotlight finds the references in your libraries</source><translation>Spotlight encuentra las referencias de sus bibliotecas</translation></message>
<message><source>Services</source><translation>Servicios</translation></message>
<message><source>Scrivel 21 commands in the Services menu of other applications</source><translation>Comandos de Scrivel 21 en el menú Servicios de otras aplicaciones</translation></message>
<message><source>Browser extension</source><translation>Extensión del navegador</translation></message>
<message><source>Tessaron for Google Chrome: collects references from web pages</source><translation>Tessaron para Google Chrome: recoge referencias de páginas web</translation></message>
<message><source>Not found</source><translation>No encontrado</translation></message>
<message><source>Find</source><translation>Buscar</translation></message>
<message><source>Find Previous</source><translation>Buscar anterior</translation></message>
<message><source>Find Next</source><translation>Buscar siguiente</translation></message>
<message><source>Close</source><translation>Cerrar</translation></message>
<message><source>%@, not selected</source><translation>%@, no seleccionado</translation></message>
<message><source>%@, not available</source><translation>%@, no disponible</translation></message>
<message><source>%@, selected</source><translation>%@, seleccionado</translation></message>
<message><source>%@, partly selected</source><translation>%@, parcialmente seleccionado</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>No se puede leer el texto de %@. Descargue de nuevo el instalador e inícielo desde allí.</translation></message>
<message><source>Look in:</source><translation>Buscar en:</translation></message>
<message><source>Folder:</source><translation>Carpeta:</translation></message>
<message><source>Application:</source><translation>Aplicación:</translation></message>
<message><source>Choose</source><translation>Elegir</translation></message>
<message><source>Processing: %@</source><translation>Procesando: %@</translation></message>
<message><source>Searching for Microsoft Word</source><translation>Búsqueda de Microsoft Word</translation></message>
<message><source>%@ was left as it is.</source><translation>%@: se ha dejado como estaba.</translation></message>
<message><source>%@ is installed, as before.</source><translation>%@: sigue instalado, como antes.</translation></message>
<message><source>%@ is not installed, as before.</source><translation>%@: sigue sin instalarse, como antes.</translation></message>
<message><source>Administrator rights were refused.</source><translation>Se denegaron los derechos de administrador.</translation></message>
<message><source>“%@” is missing from this copy of the installer.</source><translation>Falta «%@» en esta copia del instalador.</translation></message>
<message><source>“%@” could not be written.</source><translation>No se pudo escribir «%@».</translation></message>
<message><source>“%@” is still there.</source><translation>«%@» sigue ahí.</translation></message>
<message><source>It was not chosen who can use it.</source><translation>No se eligió quién puede usarlo.</translation></message>
<message><source>&#10;A copy of Scrivel was found at the following location:&#10;&#10;%@&#10;&#10;Would you like to update this copy?&#10;</source><translation>&#10;Se ha encontrado una copia de Scrivel en esta ubicación:&#10;&#10;%@&#10;&#10;¿Desea actualizar esta copia?&#10;</translation></message>
<message><source>&#10;An error occurred while attempting to update a copy of Scrivel at this location:&#10;&#10;%@&#10;&#10;Would you like to try again?&#10;</source><translation>&#10;Se ha producido un error al actualizar una copia de Scrivel en esta ubicación:&#10;&#10;%@&#10;&#10;¿Desea volver a intentarlo?&#10;</translation></message>
<message><source>Updating: %@</source><translation>Actualizando: %@</translation></message>
<message><source>“%@” was updated.</source><translation>«%@» se ha actualizado.</translation></message>
<message><source>“%@” could not be updated.</source><translation>No se ha podido actualizar «%@».</translation></message>
<message><source>“%@” was left as it is.</source><translation>«%@» se ha dejado como estaba.</translation></message>
<message><source>“%@” is up to date already.</source><translation>«%@» ya está al día.</translation></message>
<message><source>This update does not fit “%@”.</source><translation>Esta actualización no corresponde a «%@».</translation></message>
<message><source>The update did not take effect.</source><translation>La actualización no ha surtido efecto.</translation></message>
<message><source>No copy of Microsoft Word was found.</source><translation>No se encontró ninguna copia de Microsoft Word.</translation></message>
<message><source>No copy of Microsoft Word 2016 or 2019 was found.</source><translation>No se encontró ninguna copia de Microsoft Word 2016 o 2019.</translation></message>
<message><source>Output styles</source><translation>Estilos de salida</translation></message>
<message><source>Citation styles of journals and publishers, by subject</source><translation>Estilos de cita de revistas y editoriales, por materia</translation></message>
<message><source>Engineering</source><translation>Ingeniería</translation></message>
<message><source>Citation styles for engineering</source><translation>Estilos de cita para ingeniería</translation></message>
<message><source>Humanities</source><translation>Humanidades</translation></message>
<message><source>Citation styles for the humanities</source><translation>Estilos de cita para humanidades</translation></message>
<message><source>Sciences</source><translation>Ciencias</translation></message>
<message><source>Citation styles for the sciences</source><translation>Estilos de cita para ciencias</translation></message>
<message><source>More on this disk</source><translation>Más en este disco</translation></message>
<message><source>What else comes with Scrivel 21; the wizard leaves it as it is</source><translation>Qué más acompaña a Scrivel 21; el asistente no lo modifica</translation></message>
<message><source>Read Me.txt</source><translation>Read Me.txt</translation></message>
<message><source>Notes on this version, beside the installer</source><translation>Notas sobre esta versión, junto al instalador</translation></message>
<message><source>Examples</source><translation>Ejemplos</translation></message>
<message><source>A sample library; it is installed with Scrivel 21 itself</source><translation>Una biblioteca de ejemplo; se instala con Scrivel 21</translation></message>
<message><source>Uninstaller</source><translation>Desinstalador</translation></message>
<message><source>Takes Scrivel 21 away again; the Uninstall button of this page removes the other components</source><translation>Elimina Scrivel 21; el botón Desinstalar de esta página quita los demás componentes</translation></message>
<message><source>Handheld link</source><translation>Enlace con dispositivos móviles</translation></message>
<message><source>Needs a later version of this installer</source><translation>Necesita una versión posterior del instalador</translation></message>
<message><source>Penmark</source><translation>Penmark</translation></message>
<message><source>Spotlight Support</source><translation>Compatibilidad con Spotlight</translation></message>
<message><source>Scrivel Services</source><translation>Servicios de Scrivel</translation></message>
<message><source>Tessaron Extension</source><translation>Extensión Tessaron</translation></message>
<message><source>Scrivel Content Files</source><translation>Archivos de contenido de Scrivel</translation></message>
</context>
</TS>
