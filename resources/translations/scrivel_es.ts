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
<message><source>Find</source><translation>Buscar</translation></message>
<message><source>Find Next</source><translation>Buscar siguiente</translation></message>
<message><source>Find Previous</source><translation>Buscar anterior</translation></message>
<message><source>Not found</source><translation>No encontrado</translation></message>
<message><source>Close</source><translation>Cerrar</translation></message>
<message><source>Look in:</source><translation>Buscar en:</translation></message>
<message><source>Folder:</source><translation>Carpeta:</translation></message>
<message><source>Application:</source><translation>Aplicación:</translation></message>
<message><source>Choose</source><translation>Elegir</translation></message>
<message><source>The text at %@ can’t be read. Download the installer again and start it from there.</source><translation>No se puede leer el texto de %@. Descargue de nuevo el instalador e inícielo desde allí.</translation></message>
<message><source>%@, selected</source><translation>%@, seleccionado</translation></message>
<message><source>%@, not selected</source><translation>%@, no seleccionado</translation></message>
<message><source>%@, partly selected</source><translation>%@, parcialmente seleccionado</translation></message>
<message><source>%@, not available</source><translation>%@, no disponible</translation></message>
</context>
</TS>
