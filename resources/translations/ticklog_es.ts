<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ticklog</name>
    <message>
        <source>All Timers</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Nuevo proyecto</translation>
    </message>
    <message>
        <source> (Frozen %@)</source>
        <translation> (Congelado %@)</translation>
    </message>
    <message>
        <source>%ld hour</source>
        <translation>%ld hora</translation>
    </message>
    <message>
        <source>%ld hour-2</source>
        <translation>%ld horas</translation>
    </message>
    <message>
        <source>%ld hours</source>
        <translation>%ld horas</translation>
    </message>
    <message>
        <source>%ld minute</source>
        <translation>%ld minuto</translation>
    </message>
    <message>
        <source>%ld minute-2</source>
        <translation>%ld minutos</translation>
    </message>
    <message>
        <source>%ld minutes</source>
        <translation>%ld minutos</translation>
    </message>
    <message>
        <source>%ld second-0</source>
        <translation>%ld segundos</translation>
    </message>
    <message>
        <source>%ld second</source>
        <translation>%ld segundo</translation>
    </message>
    <message>
        <source>%ld second-2</source>
        <translation>%ld segundos</translation>
    </message>
    <message>
        <source>%ld seconds</source>
        <translation>%ld segundos</translation>
    </message>
    <message>
        <source>Database file (reset %@):</source>
        <translation>Última puesta a cero de los cronómetros: %@</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front, so no time can be counted.</source>
        <translation>Este escritorio Wayland no indica a otros programas qué ventana está en primer plano, por lo que no se puede contar el tiempo.</translation>
    </message>
    <message>
        <source>There is no window system that tells which window is in front.</source>
        <translation>No hay ningún sistema de ventanas que indique qué ventana está en primer plano.</translation>
    </message>
    <message>
        <source>Archive Folder</source>
        <translation>Carpeta de archivado</translation>
    </message>
    <message>
        <source>Export to CSV</source>
        <translation>Exportar a CSV</translation>
    </message>
    <message>
        <source>Ticklog Times</source>
        <translation>Tiempos de Ticklog</translation>
    </message>
    <message>
        <source>Replacing a file</source>
        <translation>Reemplazar un archivo</translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation>Ya existe un archivo con este nombre.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportando…</translation>
    </message>
    <message>
        <source>No Label</source>
        <translation>Sin color</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Morado</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>Where Ticklog is found</source>
        <translation>Dónde se encuentra Ticklog</translation>
    </message>
    <message>
        <source>Hide Dock Icon</source>
        <translation>No mostrar en la barra de tareas</translation>
    </message>
    <message>
        <source>Show Dock Icon</source>
        <translation>Mostrar en la barra de tareas</translation>
    </message>
    <message>
        <source>Hide Menubar Item</source>
        <translation>No mostrar en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Show Menubar Item</source>
        <translation>Mostrar en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>&amp;Import Database…</source>
        <translation>&amp;Importar base de datos…</translation>
    </message>
    <message>
        <source>&amp;Save a Copy As…</source>
        <translation>&amp;Guardar una copia como…</translation>
    </message>
    <message>
        <source>&amp;Choose Database Location…</source>
        <translation>&amp;Elegir la ubicación de la base de datos…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Database Location</source>
        <translation>&amp;Restaurar la ubicación predeterminada</translation>
    </message>
    <message>
        <source>Show &amp;Database in File Manager</source>
        <translation>&amp;Mostrar la base de datos en el gestor de archivos</translation>
    </message>
    <message>
        <source>E&amp;xport Shown Timers to CSV…</source>
        <translation>E&amp;xportar los cronómetros mostrados a CSV…</translation>
    </message>
    <message>
        <source>Export &amp;All Timers to CSV…</source>
        <translation>Exportar &amp;todos los cronómetros a CSV…</translation>
    </message>
    <message>
        <source>C&amp;lose Window</source>
        <translation>&amp;Cerrar la ventana</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;Summary Time</source>
        <translation>Copiar el tiempo &amp;total</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar t&amp;odo</translation>
    </message>
    <message>
        <source>D&amp;eselect All</source>
        <translation>&amp;Anular la selección</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>Edit Ru&amp;les…</source>
        <translation>Editar re&amp;glas…</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>E&amp;xpandir todo</translation>
    </message>
    <message>
        <source>&amp;Projects</source>
        <translation>&amp;Proyectos</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nuevo proyecto</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Freeze All Timers of the Project</source>
        <translation>C&amp;ongelar todos los cronómetros del proyecto</translation>
    </message>
    <message>
        <source>D&amp;elete Project…</source>
        <translation>&amp;Eliminar el proyecto…</translation>
    </message>
    <message>
        <source>&amp;Freeze</source>
        <translation>C&amp;ongelar</translation>
    </message>
    <message>
        <source>Clear Timers</source>
        <translation>Poner a cero los cronómetros</translation>
    </message>
    <message>
        <source>&amp;About Ticklog</source>
        <translation>&amp;Acerca de Ticklog</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Proyecto</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Cronómetro</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Como mínimo</translation>
    </message>
    <message>
        <source>Leaves out timers that have less time than this</source>
        <translation>Oculta los cronómetros con menos tiempo</translation>
    </message>
    <message>
        <source>Copies the sum in words</source>
        <translation>Copia el total con las unidades escritas</translation>
    </message>
    <message>
        <source>%@ (build %@)</source>
        <translation>%@ (compilación %@)</translation>
    </message>
    <message>
        <source>Are you sure you wish to clear the currently visible timers?</source>
        <translation>¿Desea poner a cero todos los cronómetros? Se quitarán sus tiempos y sus filas.</translation>
    </message>
    <message>
        <source>Set storage database location.</source>
        <translation>Elegir la ubicación de la base de datos</translation>
    </message>
    <message>
        <source>The database could not be copied.</source>
        <translation>No se pudo copiar la base de datos.</translation>
    </message>
    <message>
        <source>No timer matches the search.</source>
        <translation>Ningún cronómetro coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>This project is empty. Drag timers from “All Timers” onto it.</source>
        <translation>Este proyecto está vacío. Arrastre a él cronómetros desde «Todo».</translation>
    </message>
    <message>
        <source>No timer reaches the minimum time.</source>
        <translation>Ningún cronómetro alcanza el tiempo mínimo.</translation>
    </message>
    <message>
        <source>Press Start and carry on working. Your programs will appear here.</source>
        <translation>Pulse «Iniciar» y siga trabajando; los programas que use aparecerán aquí.</translation>
    </message>
    <message>
        <source>Replacing timers</source>
        <translation>Reemplazar los cronómetros</translation>
    </message>
    <message>
        <source>Importing timers will replace all current timers. Your current timers will be saved in a backup file next to the Ticklog database.</source>
        <translation>La importación reemplazará todos los cronómetros actuales. Estos se guardarán en una copia de seguridad junto a la base de datos de Ticklog.</translation>
    </message>
    <message>
        <source>Import Database</source>
        <translation>Importar base de datos</translation>
    </message>
    <message>
        <source>Save a Copy As</source>
        <translation>Guardar una copia como</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>No se pudo guardar la copia.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrados</translation>
    </message>
    <message>
        <source>Found in selection</source>
        <translation>Encontrados en la selección</translation>
    </message>
    <message>
        <source>total
%@</source>
        <translation>total
%@</translation>
    </message>
    <message>
        <source>project
%@</source>
        <translation>proyecto
%@</translation>
    </message>
    <message>
        <source>selected
%@</source>
        <translation>selección
%@</translation>
    </message>
    <message>
        <source>found
%@</source>
        <translation>encontrados
%@</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>congelado</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Time Spent</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>&amp;Block from the list</source>
        <translation>&amp;Omitir en los informes</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>N&amp;uevo nombre:</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>Cate&amp;gorías:</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Press comma or Enter to add; press Delete to remove.</source>
        <translation>Coma o Intro para añadir; Supr para quitar.</translation>
    </message>
    <message>
        <source>&amp;Application:</source>
        <translation>&amp;Programa:</translation>
    </message>
    <message>
        <source>&amp;Archive and clear all timers by schedule</source>
        <translation>&amp;Archivar y poner a cero todos los cronómetros periódicamente</translation>
    </message>
    <message>
        <source>At the chosen time all timers are saved to a file named after the day, and start again from zero.</source>
        <translation>A la hora elegida, todos los cronómetros se guardan en un archivo con la fecha del día y vuelven a empezar desde cero.</translation>
    </message>
    <message>
        <source>Data&amp;base:</source>
        <translation>&amp;Base de datos:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>&amp;Restore Default</source>
        <translation>&amp;Restaurar predeterminada</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>&amp;Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>CSV table</source>
        <translation>Tabla CSV</translation>
    </message>
    <message>
        <source>Ticklog database</source>
        <translation>Base de datos de Ticklog</translation>
    </message>
    <message>
        <source>CSV table and Ticklog database</source>
        <translation>Tabla CSV y base de datos de Ticklog</translation>
    </message>
    <message>
        <source>Weekdays of the archive</source>
        <translation>Días de archivado</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>E&amp;legir…</translation>
    </message>
    <message>
        <source>&amp;Time of day:</source>
        <translation>&amp;Hora:</translation>
    </message>
    <message>
        <source>&amp;Weekdays:</source>
        <translation>&amp;Días:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>No day is chosen: nothing is archived.</source>
        <translation>Ningún día elegido: no se archiva nada.</translation>
    </message>
    <message>
        <source>Archived on: </source>
        <translation>Se archiva: </translation>
    </message>
    <message>
        <source>Task bar and system tray</source>
        <translation>Barra de tareas y bandeja del sistema</translation>
    </message>
    <message>
        <source>Task bar</source>
        <translation>Barra de tareas</translation>
    </message>
    <message>
        <source>System tray</source>
        <translation>Bandeja del sistema</translation>
    </message>
    <message>
        <source>Include &amp;idle time</source>
        <translation>Incluir el tiempo de &amp;inactividad</translation>
    </message>
    <message>
        <source>Include time spent in &amp;Ticklog</source>
        <translation>Incluir el tiempo dedicado a &amp;Ticklog</translation>
    </message>
    <message>
        <source>Include &amp;seconds</source>
        <translation>Incluir los &amp;segundos</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>Copied times:</source>
        <translation>Tiempos copiados:</translation>
    </message>
    <message>
        <source>Include idle time in the total</source>
        <translation>Incluir el tiempo de inactividad en el total</translation>
    </message>
    <message>
        <source>Include time spent in Ticklog in the total</source>
        <translation>Incluir en el total el tiempo dedicado a Ticklog</translation>
    </message>
    <message>
        <source>Include seconds in copied times</source>
        <translation>Incluir los segundos en los tiempos copiados</translation>
    </message>
    <message>
        <source>Start Ticklog when I &amp;log in</source>
        <translation>Abrir Ticklog al iniciar s&amp;esión</translation>
    </message>
    <message>
        <source>&amp;Count time without input as idle</source>
        <translation>&amp;Contar el tiempo sin teclado ni ratón como inactividad</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Minutes without input until time counts as idle</source>
        <translation>Minutos sin teclado ni ratón hasta que el tiempo cuente como inactividad</translation>
    </message>
    <message>
        <source>Idle time:</source>
        <translation>Inactividad:</translation>
    </message>
    <message>
        <source>&amp;After:</source>
        <translation>&amp;Después de:</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>D&amp;uplicate…</source>
        <translation>&amp;Duplicar…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>E&amp;liminar…</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivado</translation>
    </message>
    <message>
        <source>Delete the rule?</source>
        <translation>¿Eliminar la regla?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Category. Press Delete to remove it.</source>
        <translation>Categoría. Supr para quitarla.</translation>
    </message>
    <message>
        <source>For Ticklog to function you must grant it access to your computer.</source>
        <translation>Ticklog necesita los servicios de accesibilidad de su escritorio.</translation>
    </message>
    <message>
        <source>Follow these simple steps and Ticklog will be running in no time.</source>
        <translation>Siga estos pasos y Ticklog podrá contar.</translation>
    </message>
    <message>
        <source>Launch the Security &amp; Privacy panel in the System Preferences.</source>
        <translation>Abra la configuración de su escritorio.</translation>
    </message>
    <message>
        <source>Select the Privacy tab and unlock the padlock to allow settings changes.</source>
        <translation>Vaya a la página de accesibilidad.</translation>
    </message>
    <message>
        <source>Select the Accessibility group and drag Ticklog into the list on the right.</source>
        <translation>Active los servicios para programas de asistencia.</translation>
    </message>
    <message>
        <source>Finally tick the checkbox associated with Ticklog and restart Ticklog.</source>
        <translation>Reinicie Ticklog.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Paso actual</translation>
    </message>
    <message>
        <source>Ticklog monitors the active time spent in each application. To enable this tracking you must give Ticklog permission to gather this data from the system.</source>
        <translation>Ticklog cuenta el tiempo que pasa en cada programa. Para ello necesita su permiso para preguntar al escritorio.</translation>
    </message>
    <message>
        <source>Security protections built into OS X prevent monitoring the status of other applications without user authorization. In order to protect your privacy, this action will authorize Ticklog to track your applications while maintaining the normal system wide security precautions.</source>
        <translation>El escritorio protege su privacidad: ningún programa puede observar a los demás sin su permiso. Con esto se le da a Ticklog; las demás protecciones siguen como están.</translation>
    </message>
    <message>
        <source>Authorize Ticklog</source>
        <translation>Autorizar Ticklog</translation>
    </message>
    <message>
        <source>Cancel Start</source>
        <translation>Cancelar el inicio</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Secuirty &gt; Privacy &gt; Accessibility system preferences.</source>
        <translation>Active la accesibilidad en la configuración de su escritorio.</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Universal Access system preferences.</source>
        <translation>Active la accesibilidad en la configuración de su escritorio.</translation>
    </message>
    <message>
        <source>An error was encountered.</source>
        <translation>Se ha producido un error.</translation>
    </message>
    <message>
        <source>Open Preference Panel</source>
        <translation>Abrir la configuración</translation>
    </message>
    <message>
        <source>Ticklog is counting</source>
        <translation>Ticklog está contando</translation>
    </message>
    <message>
        <source>Ticklog is paused</source>
        <translation>Ticklog está en pausa</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Software libre bajo la licencia MIT.</translation>
    </message>
    <message>
        <source>There is no system tray.</source>
        <translation>No hay bandeja del sistema.</translation>
    </message>
    <message>
        <source>Ticklog therefore stays in the task bar, and its menu is in the main window. It moves to the tray as soon as there is one.</source>
        <translation>Por eso Ticklog permanece en la barra de tareas y su menú está en la ventana principal. Pasará a la bandeja en cuanto haya una.</translation>
    </message>
    <message>
        <source>Ticklog databases</source>
        <translation>Bases de datos de Ticklog</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>Archivos CSV</translation>
    </message>
    <message>
        <source>Application Times</source>
        <translation>Tiempos por programa</translation>
    </message>
    <message>
        <source>Show Time Window</source>
        <translation>Mostrar Ticklog</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Acerca de Ticklog</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>About Ticklog</source>
        <translation>Acerca de Ticklog</translation>
    </message>
    <message>
        <source>Delete Project</source>
        <translation>Eliminar el proyecto</translation>
    </message>
    <message>
        <source>Add to Project</source>
        <translation>Añadir al proyecto</translation>
    </message>
    <message>
        <source>Rename Project</source>
        <translation>Cambiar el nombre del proyecto</translation>
    </message>
    <message>
        <source>The timer set &quot;%@&quot; will be deleted.</source>
        <translation>Se eliminará el proyecto «%@».</translation>
    </message>
    <message>
        <source>Delete selected timer set?</source>
        <translation>¿Eliminar el proyecto seleccionado?</translation>
    </message>
    <message>
        <source>Move Project</source>
        <translation>Mover el proyecto</translation>
    </message>
    <message>
        <source>Remove from Project</source>
        <translation>Quitar del proyecto</translation>
    </message>
    <message>
        <source>Label Project</source>
        <translation>Cambiar el color del proyecto</translation>
    </message>
    <message>
        <source>Copy Project</source>
        <translation>Copiar el proyecto</translation>
    </message>
    <message>
        <source>Ticklog cannot see other programs’ windows</source>
        <translation>Ticklog no puede ver las ventanas de otros programas</translation>
    </message>
    <message>
        <source>To count the time spent in each window, it needs the accessibility services of the desktop. Start the timer again when they are turned on.</source>
        <translation>Para contar el tiempo en cada ventana necesita los servicios de accesibilidad del escritorio. Vuelva a iniciar el cronómetro cuando estén activados.</translation>
    </message>
    <message>
        <source>Turn On</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Delete &amp;Without Asking</source>
        <translation>Eliminar &amp;sin preguntar</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Contr&amp;aer todo</translation>
    </message>
    <message>
        <source>&amp;Rename Project</source>
        <translation>&amp;Cambiar el nombre del proyecto</translation>
    </message>
    <message>
        <source>Sho&amp;w Ticklog in:</source>
        <translation>&amp;Mostrar Ticklog en:</translation>
    </message>
    <message>
        <source>Ticklog cannot be started at login.</source>
        <translation>No se puede abrir Ticklog al iniciar sesión.</translation>
    </message>
    <message>
        <source>Ticklog is still started at login.</source>
        <translation>Ticklog se sigue abriendo al iniciar sesión.</translation>
    </message>
    <message>
        <source>Plasma tells only installed programs which window is in front. Install Ticklog, and start it from the menu.</source>
        <translation>Plasma solo indica a los programas instalados qué ventana está en primer plano. Instale Ticklog y ábralo desde el menú.</translation>
    </message>
    <message>
        <source>This Wayland desktop no longer tells other programs which window is in front.</source>
        <translation>Este escritorio Wayland ya no indica a otros programas qué ventana está en primer plano.</translation>
    </message>
    <message>
        <source>GNOME Shell tells which window is in front only to its extensions, and the one that belongs to Ticklog is not running.</source>
        <translation>GNOME Shell solo indica a sus extensiones qué ventana está en primer plano, y la de Ticklog no está activa.</translation>
    </message>
    <message>
        <source>GNOME Shell tells this only to its extensions. The one that comes with Ticklog tells Ticklog, and no other program, which windows are on the screen. Without it Ticklog sees only some programs.</source>
        <translation>GNOME Shell solo se lo indica a sus extensiones. La que incluye Ticklog indica a Ticklog, y a ningún otro programa, qué ventanas hay en la pantalla. Sin ella Ticklog solo ve algunos programas.</translation>
    </message>
    <message>
        <source>Ticklog needs an extension of GNOME Shell to see which window is in front.</source>
        <translation>Ticklog necesita una extensión de GNOME Shell para ver qué ventana está en primer plano.</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Don&apos;t Ask Again</source>
        <translation>No volver a preguntar</translation>
    </message>
    <message>
        <source>GNOME Shell finds new extensions at login: log out and in again once it is installed.</source>
        <translation>GNOME Shell detecta las extensiones nuevas al iniciar sesión: cierre la sesión y vuelva a iniciarla después de la instalación.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>The extension could not be installed.</source>
        <translation>No se pudo instalar la extensión.</translation>
    </message>
    <message>
        <source>Until then, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Hasta entonces, solo se ven los programas que informan de sus ventanas a los programas de asistencia; todo el tiempo restante cuenta como «Escritorio».</translation>
    </message>
    <message>
        <source>GNOME Shell’s switch for all extensions is off. It is turned on as well, and with it the other extensions that are chosen there.</source>
        <translation>El interruptor de GNOME Shell para todas las extensiones está desactivado. También se activará, y con él las demás extensiones que estén elegidas allí.</translation>
    </message>
    <message>
        <source>GNOME Shell has not turned the extension on.</source>
        <translation>GNOME Shell no ha activado la extensión.</translation>
    </message>
    <message>
        <source>Turn it on in the program “Extensions”, together with the switch for all extensions. If you cannot, the administrator of this computer does not allow it.</source>
        <translation>Actívela en el programa «Extensiones», junto con el interruptor de todas las extensiones. Si no puede, el administrador de este equipo no lo permite.</translation>
    </message>
    <message>
        <source>Set Up...</source>
        <translation>Configurar…</translation>
    </message>
    <message>
        <source>Why Are Windows Not Counted?</source>
        <translation>¿Por qué no se cuentan las ventanas?</translation>
    </message>
    <message>
        <source>GNOME Shell does not tell programs in a sandbox which window is in front. Installed outside of one, Ticklog can be told.</source>
        <translation>GNOME Shell no indica a los programas de un entorno aislado qué ventana está en primer plano. Instalado fuera de él, Ticklog puede saberlo.</translation>
    </message>
    <message>
        <source>Ticklog runs in a sandbox and cannot change what starts with your session. The desktop’s settings can.</source>
        <translation>Ticklog se ejecuta en un entorno aislado y no puede cambiar lo que se inicia con la sesión. Se puede hacer en la configuración del escritorio.</translation>
    </message>
    <message>
        <source>The desktop has stopped responding. Until it responds, no window’s time is counted.</source>
        <translation>El escritorio ha dejado de responder. Hasta que responda, no se cuenta el tiempo de ninguna ventana.</translation>
    </message>
    <message>
        <source>Ticklog’s extension does not support GNOME Shell %@ yet.</source>
        <translation>La extensión de Ticklog aún no es compatible con GNOME Shell %@.</translation>
    </message>
    <message>
        <source>Ticklog was started without knowing of the Wayland desktop, so it sees only programs that run through the X server. Start Ticklog from the desktop’s menu.</source>
        <translation>Ticklog se ha iniciado sin conocer el escritorio Wayland, por lo que solo ve los programas que funcionan a través del servidor X. Inicie Ticklog desde el menú del escritorio.</translation>
    </message>
    <message>
        <source>Until it runs, no window’s time is counted.</source>
        <translation>Mientras no esté activa, no se cuenta el tiempo de ninguna ventana.</translation>
    </message>
    <message>
        <source>Until it runs, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Mientras no esté activa, solo se ven los programas que informan de sus ventanas a los programas de asistencia; todo el tiempo restante cuenta como «Escritorio».</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Congelar</translation>
    </message>
    <message>
        <source>“%@” is in a folder where others may write: they could replace it.</source>
        <translation>«%@» está en una carpeta en la que otros pueden escribir y, por tanto, cambiarlo.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is missing.</source>
        <translation>No se puede guardar «%@»: falta su carpeta.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is read-only.</source>
        <translation>No se puede guardar «%@»: su carpeta es de solo lectura.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: the disk is full.</source>
        <translation>No se puede guardar «%@»: el disco está lleno.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved.</source>
        <translation>No se puede guardar «%@».</translation>
    </message>
    <message>
        <source>“%@” could not be read. It was set aside, and Ticklog has started without it.</source>
        <translation>No se pudo leer «%@». El archivo se ha apartado y Ticklog ha empezado sin él.</translation>
    </message>
    <message>
        <source>Some entries of “%@” are damaged and were left out. The damaged file is kept beside it.</source>
        <translation>Algunas entradas de «%@» están dañadas y se han omitido. El archivo dañado se conserva al lado.</translation>
    </message>
    <message>
        <source>“%@” could not be read. Ticklog continues with the last settings that it kept.</source>
        <translation>No se pudo leer «%@». Ticklog sigue con los últimos ajustes que conservaba.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be moved to its folder. It lies beside the database.</source>
        <translation>El archivo histórico «%@» no se pudo llevar a su carpeta. Está junto a la base de datos.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be written anywhere.</source>
        <translation>El archivo histórico «%@» no se pudo escribir en ningún sitio.</translation>
    </message>
    <message>
        <source>The database “%@” is missing. What is counted until it is back will be added to it.</source>
        <translation>Falta la base de datos «%@». Lo que se cuente hasta que vuelva se le añadirá.</translation>
    </message>
    <message>
        <source>No backup could be made, so nothing was changed.</source>
        <translation>No se pudo hacer ninguna copia de seguridad, así que no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>The timers could not be imported.</source>
        <translation>No se pudieron importar los cronómetros.</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Export &amp;Project…</source>
        <translation>Exportar el &amp;proyecto…</translation>
    </message>
    <message>
        <source>No timer that matches the search reaches the minimum time.</source>
        <translation>Ningún cronómetro que coincida con la búsqueda alcanza el tiempo mínimo.</translation>
    </message>
    <message>
        <source>Export All Timers to CSV, Narrowed by the Search</source>
        <translation>Exportar todos los cronómetros a CSV, limitados por la búsqueda</translation>
    </message>
    <message>
        <source>Export All Timers to CSV</source>
        <translation>Exportar todos los cronómetros a CSV</translation>
    </message>
    <message>
        <source>Export Project to CSV</source>
        <translation>Exportar el proyecto a CSV</translation>
    </message>
    <message>
        <source>Ticklog keeps running in the task bar.</source>
        <translation>Ticklog sigue en la barra de tareas.</translation>
    </message>
    <message>
        <source>There is no tray icon that could bring a closed window back, so closing the window minimizes it and Ticklog keeps running. “Quit” ends Ticklog.</source>
        <translation>Ningún icono de la bandeja lleva de vuelta a una ventana cerrada. Por eso, al cerrarla se minimiza y Ticklog sigue. «Salir» lo termina.</translation>
    </message>
    <message>
        <source>There are more timers than one database can hold: %@ at the most.</source>
        <translation>Hay más cronómetros de los que caben en una base de datos: %@ como máximo.</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importando…</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front. Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Este escritorio Wayland no indica a otros programas qué ventana está en primer plano. Solo se ven los programas que informan de sus ventanas a los programas de asistencia; todo el tiempo restante cuenta como «Escritorio».</translation>
    </message>
    <message>
        <source>“%@” was written by a newer version. It is left alone, and nothing is added to it.</source>
        <translation>«%@» fue escrito por una versión más reciente. Se deja como está y no se le añade nada.</translation>
    </message>
    <message>
        <source>No history is kept.</source>
        <translation>No se guarda ningún historial.</translation>
    </message>
    <message>
        <source>until</source>
        <translation>hasta</translation>
    </message>
    <message>
        <source>&amp;Forget…</source>
        <translation>&amp;Olvidar…</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Olvidar</translation>
    </message>
    <message>
        <source>Any title</source>
        <translation>Cualquier título</translation>
    </message>
    <message>
        <source>At any time</source>
        <translation>En cualquier momento</translation>
    </message>
    <message>
        <source>On the day</source>
        <translation>El día</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programa:</translation>
    </message>
    <message>
        <source>&amp;Title contains:</source>
        <translation>El &amp;título contiene:</translation>
    </message>
    <message>
        <source>&amp;When:</source>
        <translation>&amp;Cuándo:</translation>
    </message>
    <message>
        <source>The history forgets it for good. Timers keep their names and times; to remove those, delete their rows.</source>
        <translation>El historial lo olvida para siempre. Los cronómetros conservan nombre y tiempo; para quitarlos, elimine sus filas.</translation>
    </message>
    <message>
        <source>What would be forgotten</source>
        <translation>Lo que se olvidaría</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Todos los programas</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>No se puede leer el historial.</translation>
    </message>
    <message>
        <source>Forget this for good?</source>
        <translation>¿Olvidar esto para siempre?</translation>
    </message>
    <message>
        <source>It is removed from the file at once. This cannot be undone.</source>
        <translation>Se quita del archivo en el acto. Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>It is being forgotten…</source>
        <translation>Se está olvidando…</translation>
    </message>
    <message>
        <source>It is forgotten.</source>
        <translation>Está olvidado.</translation>
    </message>
    <message>
        <source>It is not forgotten yet, because the history cannot be saved at the moment. Ticklog keeps trying.</source>
        <translation>Aún no está olvidado, porque ahora mismo no se puede guardar el historial. Ticklog lo sigue intentando.</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Para siempre</translation>
    </message>
    <message>
        <source>For five years</source>
        <translation>Cinco años</translation>
    </message>
    <message>
        <source>For a year</source>
        <translation>Un año</translation>
    </message>
    <message>
        <source>For 90 days</source>
        <translation>90 días</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>No conservar</translation>
    </message>
    <message>
        <source>The history records which title was in front, and when. It stays on this machine, in a file that only you can read, and lets the timers lose no more than 15 seconds in a crash.</source>
        <translation>El historial recoge qué título estuvo en primer plano y cuándo. Se queda en este equipo, en un archivo que solo usted puede leer; gracias a él, los cronómetros no pierden más de 15 segundos en un fallo.</translation>
    </message>
    <message>
        <source>&amp;Keep the history:</source>
        <translation>&amp;Conservar el historial:</translation>
    </message>
    <message>
        <source>A &amp;day begins at:</source>
        <translation>Un &amp;día empieza a las:</translation>
    </message>
    <message>
        <source>For %@ days</source>
        <translation>%@ días</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se encontró nada.</translation>
    </message>
    <message>
        <source>Titles: %@</source>
        <translation>Títulos: %@</translation>
    </message>
    <message>
        <source>Time spent: %@</source>
        <translation>Tiempo: %@</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Stop keeping a history?</source>
        <translation>¿Dejar de guardar el historial?</translation>
    </message>
    <message>
        <source>Forget what is older?</source>
        <translation>¿Olvidar lo que es más antiguo?</translation>
    </message>
    <message>
        <source>Its file is removed at once. This cannot be undone. Timers keep their times, but a crash may cost them the last 15 minutes.</source>
        <translation>Su archivo se elimina en el acto. Esto no se puede deshacer. Los cronómetros conservan su tiempo, pero un fallo puede costarles los últimos 15 minutos.</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Títulos</translation>
    </message>
    <message>
        <source>Rule for Titles</source>
        <translation>Regla para títulos</translation>
    </message>
    <message>
        <source>How the title is found</source>
        <translation>Cómo se encuentra el título</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>matches the expression</source>
        <translation>coincide con la expresión</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Cualquiera</translation>
    </message>
    <message>
        <source>&amp;Program contains:</source>
        <translation>El &amp;programa contiene:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Effect:</source>
        <translation>&amp;Efecto:</translation>
    </message>
    <message>
        <source>&amp;New text:</source>
        <translation>&amp;Nuevo texto:</translation>
    </message>
    <message>
        <source>This expression cannot be read: %@</source>
        <translation>No se puede leer esta expresión: %@</translation>
    </message>
    <message>
        <source>This expression is wrong: %@</source>
        <translation>Expresión errónea: %@</translation>
    </message>
    <message>
        <source>Private windows of browsers</source>
        <translation>Ventanas privadas de navegadores</translation>
    </message>
    <message>
        <source>Keep the title</source>
        <translation>Conservar el título</translation>
    </message>
    <message>
        <source>Replace the title</source>
        <translation>Reemplazar el título</translation>
    </message>
    <message>
        <source>Count as “Private”</source>
        <translation>Contar como «Privado»</translation>
    </message>
    <message>
        <source>Leave the title out</source>
        <translation>Omitir el título</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>Rules for titles</source>
        <translation>Reglas para títulos</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Matching Titles…</source>
        <translation>&amp;Títulos coincidentes…</translation>
    </message>
    <message>
        <source>Apply to the &amp;Past…</source>
        <translation>Aplicar al &amp;pasado…</translation>
    </message>
    <message>
        <source>What these rules hide is never written. The first rule that matches decides.</source>
        <translation>Lo que estas reglas ocultan nunca se escribe. Decide la primera que coincide.</translation>
    </message>
    <message>
        <source>Titles of the Last 7 Days</source>
        <translation>Títulos de los últimos 7 días</translation>
    </message>
    <message>
        <source>The rules match nothing in the past.</source>
        <translation>Las reglas no afectan a nada del pasado.</translation>
    </message>
    <message>
        <source>Timers: %@</source>
        <translation>Cronómetros: %@</translation>
    </message>
    <message>
        <source>Apply the rules to the past?</source>
        <translation>¿Aplicar las reglas al pasado?</translation>
    </message>
    <message>
        <source>What they hide is removed for good from the history, the timers and the projects. Neither this nor any earlier step can be undone. Archives and backups stay as they are.</source>
        <translation>Lo que ocultan se quita para siempre del historial, de los cronómetros y de los proyectos. No se podrá deshacer ni esto ni nada de lo anterior. Los archivos históricos y las copias de seguridad quedan como están.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Pa&amp;tterns…</source>
        <translation>P&amp;atrones…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Patrones</translation>
    </message>
    <message>
        <source>Program contains</source>
        <translation>El programa contiene</translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation>El título contiene</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Whatever matches belongs to the project in the history and in reports, past time included. The project’s own timers stay as they are.</source>
        <translation>Lo que coincide pertenece al proyecto en el historial y en los informes, también en el pasado. Los cronómetros del proyecto quedan como están.</translation>
    </message>
    <message>
        <source>The title is a regular expression</source>
        <translation>El título es una expresión regular</translation>
    </message>
    <message>
        <source>Change Patterns</source>
        <translation>Cambiar los patrones</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>A&amp;trás</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>Ade&amp;lante</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Hoy</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semana</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mes</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Año</translation>
    </message>
    <message>
        <source>F&amp;rom – To…</source>
        <translation>D&amp;esde – hasta…</translation>
    </message>
    <message>
        <source>By &amp;Program</source>
        <translation>Por &amp;programa</translation>
    </message>
    <message>
        <source>By Pro&amp;ject</source>
        <translation>Por pro&amp;yecto</translation>
    </message>
    <message>
        <source>Nothing here reaches the minimum time.</source>
        <translation>Nada alcanza aquí el tiempo mínimo.</translation>
    </message>
    <message>
        <source>Nothing in this time matches the search.</source>
        <translation>Nada de este período coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>No work for this project in this time.</source>
        <translation>No hay trabajo para este proyecto en este período.</translation>
    </message>
    <message>
        <source>This time is still to come.</source>
        <translation>Este período aún no ha llegado.</translation>
    </message>
    <message>
        <source>No work was recorded in this time.</source>
        <translation>No se registró trabajo en este período.</translation>
    </message>
    <message>
        <source>Ticklog History</source>
        <translation>Historial de Ticklog</translation>
    </message>
    <message>
        <source>The history could not be exported.</source>
        <translation>No se pudo exportar el historial.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Proporción</translation>
    </message>
    <message>
        <source>Opens a calendar</source>
        <translation>Abre un calendario</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>&amp;Timers</source>
        <translation>&amp;Cronómetros</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>H&amp;istory</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>The day</source>
        <translation>El día</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactividad</translation>
    </message>
    <message>
        <source>Project %@</source>
        <translation>Proyecto %@</translation>
    </message>
    <message>
        <source>%@ more</source>
        <translation>%@ más</translation>
    </message>
    <message>
        <source>The period</source>
        <translation>El período</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Week of %@</source>
        <translation>Semana del %@</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time &amp;Sheet…</source>
        <translation>Ho&amp;ja de horas…</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>Sin proyecto</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Time Sheet</source>
        <translation>Hoja de horas</translation>
    </message>
    <message>
        <source>Measured: %@</source>
        <translation>Medido: %@</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Redondeo</translation>
    </message>
    <message>
        <source>No Rounding</source>
        <translation>Sin redondeo</translation>
    </message>
    <message>
        <source>6 Minutes</source>
        <translation>6 minutos</translation>
    </message>
    <message>
        <source>15 Minutes</source>
        <translation>15 minutos</translation>
    </message>
    <message>
        <source>30 Minutes</source>
        <translation>30 minutos</translation>
    </message>
    <message>
        <source>Direction of rounding</source>
        <translation>Sentido del redondeo</translation>
    </message>
    <message>
        <source>To the Nearest</source>
        <translation>Al más cercano</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hacia arriba</translation>
    </message>
    <message>
        <source>What is rounded</source>
        <translation>Qué se redondea</translation>
    </message>
    <message>
        <source>Each Cell</source>
        <translation>Cada celda</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Form of times</source>
        <translation>Formato de las horas</translation>
    </message>
    <message>
        <source>Hours and Minutes</source>
        <translation>Horas y minutos</translation>
    </message>
    <message>
        <source>Decimal Hours</source>
        <translation>Horas decimales</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notas:</translation>
    </message>
    <message>
        <source>Save as C&amp;SV…</source>
        <translation>Guardar como C&amp;SV…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Guardar como P&amp;DF…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>Save the Time Sheet as CSV</source>
        <translation>Guardar la hoja de horas como CSV</translation>
    </message>
    <message>
        <source>The time sheet could not be saved.</source>
        <translation>No se pudo guardar la hoja de horas.</translation>
    </message>
    <message>
        <source>Save the Time Sheet as PDF</source>
        <translation>Guardar la hoja de horas como PDF</translation>
    </message>
    <message>
        <source>Today: %@</source>
        <translation>Hoy: %@</translation>
    </message>
    <message>
        <source>Pause For</source>
        <translation>Pausa durante</translation>
    </message>
    <message>
        <source>An Hour</source>
        <translation>Una hora</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>Hasta mañana</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Capítulos</translation>
    </message>
    <message>
        <source>&amp;Give to Project</source>
        <translation>Asi&amp;gnar a un proyecto</translation>
    </message>
    <message>
        <source>&amp;Name This Time…</source>
        <translation>Dar &amp;nombre a este tiempo…</translation>
    </message>
    <message>
        <source>Boo&amp;k Time…</source>
        <translation>&amp;Registrar tiempo…</translation>
    </message>
    <message>
        <source>Forg&amp;et This Time…</source>
        <translation>Ol&amp;vidar este tiempo…</translation>
    </message>
    <message>
        <source>Booked by hand on %1</source>
        <translation>Registrado a mano el %1</translation>
    </message>
    <message>
        <source>Given to its project by hand on %1</source>
        <translation>Asignado al proyecto a mano el %1</translation>
    </message>
    <message>
        <source>Named by hand on %1, before: %2</source>
        <translation>Nombrado a mano el %1, antes: %2</translation>
    </message>
    <message>
        <source>By Hand</source>
        <translation>A mano</translation>
    </message>
    <message>
        <source>&amp;No Project</source>
        <translation>&amp;Sin proyecto</translation>
    </message>
    <message>
        <source>Give to Project</source>
        <translation>Asignar a un proyecto</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Registrar</translation>
    </message>
    <message>
        <source>Boo&amp;k</source>
        <translation>&amp;Registrar</translation>
    </message>
    <message>
        <source>Book Time</source>
        <translation>Registrar tiempo</translation>
    </message>
    <message>
        <source>&amp;Begin:</source>
        <translation>&amp;Inicio:</translation>
    </message>
    <message>
        <source>&amp;End:</source>
        <translation>&amp;Fin:</translation>
    </message>
    <message>
        <source>&amp;What was it?</source>
        <translation>¿&amp;Qué fue?</translation>
    </message>
    <message>
        <source>&amp;Project:</source>
        <translation>&amp;Proyecto:</translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation>Termina antes de empezar.</translation>
    </message>
    <message>
        <source>No time is free there: you worked then, or it is still to come.</source>
        <translation>No hay tiempo libre ahí: trabajó entonces, o aún está por venir.</translation>
    </message>
    <message>
        <source>%1 of it is free. Time that you worked stays as it is.</source>
        <translation>Hay %1 libres. El tiempo trabajado queda como está.</translation>
    </message>
    <message>
        <source>Named by hand</source>
        <translation>Nombrado a mano</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombrar</translation>
    </message>
    <message>
        <source>Name This Time</source>
        <translation>Dar nombre a este tiempo</translation>
    </message>
    <message>
        <source>The time stays with its programs. The history notes what was changed by hand.</source>
        <translation>El tiempo sigue siendo de sus programas. El historial anota lo que se cambió a mano.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ampl&amp;iar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Redu&amp;cir</translation>
    </message>
    <message>
        <source>Reset &amp;Zoom</source>
        <translation>Restablecer el &amp;zoom</translation>
    </message>
    <message>
        <source>Start the timer to record where your time goes, and when.</source>
        <translation>Inicie el cronómetro para registrar a qué dedica su tiempo, y cuándo.</translation>
    </message>
    <message>
        <source>Add to &amp;Project</source>
        <translation>Añadir al &amp;proyecto</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nuevo proyecto…</translation>
    </message>
    <message>
        <source>Absences</source>
        <translation>Ausencias</translation>
    </message>
    <message>
        <source>Do not ask about these absences</source>
        <translation>No preguntar por estas ausencias</translation>
    </message>
    <message>
        <source>What the absence was</source>
        <translation>Qué fue la ausencia</translation>
    </message>
    <message>
        <source>Project of the absence</source>
        <translation>Proyecto de la ausencia</translation>
    </message>
    <message>
        <source>Book the absence as work</source>
        <translation>Registrar la ausencia como trabajo</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Descanso</translation>
    </message>
    <message>
        <source>The absence was not work</source>
        <translation>La ausencia no fue trabajo</translation>
    </message>
    <message>
        <source>&amp;What did you do?</source>
        <translation>¿&amp;Qué hizo?</translation>
    </message>
    <message>
        <source>You were away: %@</source>
        <translation>Ausencia: %@</translation>
    </message>
    <message>
        <source>Book the Absence</source>
        <translation>Registrar la ausencia</translation>
    </message>
    <message>
        <source>You were away for %@</source>
        <translation>Ausencia de %@</translation>
    </message>
    <message>
        <source>%@. What was it?</source>
        <translation>%@. ¿Qué fue?</translation>
    </message>
    <message>
        <source>Say…</source>
        <translation>Indicar…</translation>
    </message>
    <message>
        <source>%@ – %@ (%@)</source>
        <translation>%@ – %@ (%@)</translation>
    </message>
    <message>
        <source>&amp;Ask what an absence was</source>
        <translation>&amp;Preguntar qué fue una ausencia</translation>
    </message>
    <message>
        <source>When you come back, a notice and a bar in the window ask what you did. Your answer is booked by hand; without one, the time stays idle.</source>
        <translation>Cuando vuelve, una notificación y una barra en la ventana preguntan qué hizo. Su respuesta se registra a mano; sin ella, el tiempo sigue siendo inactividad.</translation>
    </message>
    <message>
        <source>&amp;Shortest absence:</source>
        <translation>Ausencia &amp;más corta:</translation>
    </message>
    <message>
        <source>The times could not be exported.</source>
        <translation>No se pudieron exportar los tiempos.</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identidad</translation>
    </message>
    <message>
        <source>Export Shown &amp;Timers for Spreadsheets…</source>
        <translation>Exportar los cronómetros mostrados para hoja de cálcu&amp;lo…</translation>
    </message>
    <message>
        <source>Copy for Spreadshee&amp;t</source>
        <translation>Copiar para hoja de cálcu&amp;lo</translation>
    </message>
    <message>
        <source>A project shows all its timers, however little time they have</source>
        <translation>Un proyecto muestra todos sus cronómetros, por poco tiempo que tengan</translation>
    </message>
    <message>
        <source>It is removed from the file at once. It can be undone until Ticklog ends.</source>
        <translation>Se quita del archivo en el acto. Se puede deshacer hasta que Ticklog termine.</translation>
    </message>
    <message>
        <source>Forget this?</source>
        <translation>¿Olvidar esto?</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>The history cannot be read at the moment.</source>
        <translation>El historial no se puede leer en este momento.</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of their rows.</source>
        <translation>El tiempo que pertenece a varios proyectos está en la fila de cada uno.</translation>
    </message>
    <message>
        <source>Total without %@</source>
        <translation>Total sin %@</translation>
    </message>
    <message>
        <source>Total without %@ and %@</source>
        <translation>Total sin %@ ni %@</translation>
    </message>
    <message>
        <source>No history is kept. You can turn it on in the preferences, under History.</source>
        <translation>No se guarda ningún historial. Puede activarlo en las preferencias, en Historial.</translation>
    </message>
    <message>
        <source>Delete selected times</source>
        <translation>¿Eliminar las filas seleccionadas?</translation>
    </message>
    <message>
        <source>Are you sure you wish permanently delete the selected timing rows?</source>
        <translation>Sus tiempos se eliminan con ellas. «Deshacer» las recupera.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Private</source>
        <translation>Privado</translation>
    </message>
    <message>
        <source>Timer still running.</source>
        <translation>El cronómetro sigue en marcha.</translation>
    </message>
    <message>
        <source>There is a timer currently running. Ticklog must remain open in order to keep track of time. Are you sure you wish to quit?</source>
        <translation>Ticklog debe seguir abierto para contar su tiempo. ¿Desea salir?</translation>
    </message>
    <message>
        <source>Remain Open</source>
        <translation>Dejar abierto</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>Duración del período</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Agrupación</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>While its timer runs, Ticklog notes which program and which of its windows, by its title, is in front, and for how long.</source>
        <translation>Mientras el cronómetro está en marcha, Ticklog anota qué programa y cuál de sus ventanas (según su título) está en primer plano, y durante cuánto tiempo.</translation>
    </message>
    <message>
        <source>It notes no keys, no pictures and nothing of what is in a window; time without input goes to Idle.</source>
        <translation>No anota las teclas, ni imágenes, ni nada del contenido de las ventanas; el tiempo sin teclado ni ratón cuenta como «Inactividad».</translation>
    </message>
    <message>
        <source>The record stays on this computer, in files that only you can read, and is sent nowhere.</source>
        <translation>El registro se queda en este equipo, en archivos que solo usted puede leer, y no se envía a ninguna parte.</translation>
    </message>
    <message>
        <source>You can hide titles by rules, and delete or forget whatever was recorded, at any time.</source>
        <translation>En cualquier momento puede ocultar títulos mediante reglas y eliminar u olvidar lo que se haya registrado.</translation>
    </message>
    <message>
        <source>Start Ticklog when I log in</source>
        <translation>Abrir Ticklog al iniciar sesión</translation>
    </message>
    <message>
        <source>Start the Timer</source>
        <translation>Iniciar el cronómetro</translation>
    </message>
    <message>
        <source>Welcome to Ticklog</source>
        <translation>Le damos la bienvenida a Ticklog</translation>
    </message>
    <message>
        <source>Hide Titles…</source>
        <translation>Ocultar títulos…</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>Todavía no</translation>
    </message>
    <message>
        <source>Icons of &amp;programs</source>
        <translation>Iconos de los &amp;programas</translation>
    </message>
    <message>
        <source>A &amp;bar behind each time</source>
        <translation>Una &amp;barra detrás de cada tiempo</translation>
    </message>
    <message>
        <source>Titles without their program’s &amp;name</source>
        <translation>Títulos sin el &amp;nombre de su programa</translation>
    </message>
    <message>
        <source>Times of pro&amp;jects in the sidebar</source>
        <translation>Tiempos de los pro&amp;yectos en la barra lateral</translation>
    </message>
    <message>
        <source>Timers and projects show:</source>
        <translation>Los cronómetros y los proyectos muestran:</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listas</translation>
    </message>
    <message>
        <source>Paste &amp;into Project</source>
        <translation>Pegar en el pro&amp;yecto</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Ascendente</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Descendente</translation>
    </message>
    <message>
        <source>sorted, ascending</source>
        <translation>orden ascendente</translation>
    </message>
    <message>
        <source>sorted, descending</source>
        <translation>orden descendente</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of them.</source>
        <translation>El tiempo que pertenece a varios proyectos está en cada uno de ellos.</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documentos PDF</translation>
    </message>
    <message>
        <source>A row for each &amp;title</source>
        <translation>Una fila por &amp;título</translation>
    </message>
    <message>
        <source>A row for each &amp;title, in all programs</source>
        <translation>Una fila por &amp;título, en todos los programas</translation>
    </message>
    <message>
        <source>All time is in your projects.</source>
        <translation>Todo el tiempo está en sus proyectos.</translation>
    </message>
    <message>
        <source>%@: a row for each title</source>
        <translation>%@: una fila por título</translation>
    </message>
    <message>
        <source>In reports, rules leave out, rename and categorize programs. A row for each title changes how the timers are kept.</source>
        <translation>En los informes, las reglas omiten, renombran y clasifican programas. Una fila por título cambia la forma de contar.</translation>
    </message>
    <message>
        <source>When a window gets another title, a new row begins instead of the window’s row getting its name. A title that comes back goes on in its old row. After switching this off, the row of a window’s latest title follows the window again, with the time it has.</source>
        <translation>Cuando una ventana cambia de título, empieza una fila nueva en lugar de que la fila de la ventana tome ese nombre. Un título que vuelve continúa en su fila anterior. Al desactivarlo, la fila del último título vuelve a seguir a la ventana, con el tiempo que tiene.</translation>
    </message>
</context>
</TS>
