<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ticklog</name>
    <message>
        <source>All Timers</source>
        <translation>Alle Timer</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source> (Frozen %@)</source>
        <translation> (Eingefroren %@)</translation>
    </message>
    <message>
        <source>%ld hour</source>
        <translation>%ld Stunde</translation>
    </message>
    <message>
        <source>%ld hour-2</source>
        <translation>%ld Stunden</translation>
    </message>
    <message>
        <source>%ld hours</source>
        <translation>%ld Stunden</translation>
    </message>
    <message>
        <source>%ld minute</source>
        <translation>%ld Minute</translation>
    </message>
    <message>
        <source>%ld minute-2</source>
        <translation>%ld Minuten</translation>
    </message>
    <message>
        <source>%ld minutes</source>
        <translation>%ld Minuten</translation>
    </message>
    <message>
        <source>%ld second-0</source>
        <translation>%ld Sekunden</translation>
    </message>
    <message>
        <source>%ld second</source>
        <translation>%ld Sekunde</translation>
    </message>
    <message>
        <source>%ld second-2</source>
        <translation>%ld Sekunden</translation>
    </message>
    <message>
        <source>%ld seconds</source>
        <translation>%ld Sekunden</translation>
    </message>
    <message>
        <source>Database file (reset %@):</source>
        <translation>Timer zuletzt zurückgesetzt: %@</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front, so no time can be counted.</source>
        <translation>Diese Wayland-Arbeitsumgebung teilt anderen Programmen nicht mit, welches Fenster vorn ist. Deshalb kann keine Zeit gezählt werden.</translation>
    </message>
    <message>
        <source>There is no window system that tells which window is in front.</source>
        <translation>Es gibt kein Fenstersystem, das mitteilt, welches Fenster vorn ist.</translation>
    </message>
    <message>
        <source>Archive Folder</source>
        <translation>Archivordner</translation>
    </message>
    <message>
        <source>Export to CSV</source>
        <translation>Als CSV exportieren</translation>
    </message>
    <message>
        <source>Ticklog Times</source>
        <translation>Ticklog-Zeiten</translation>
    </message>
    <message>
        <source>Replacing a file</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation>Es gibt bereits eine Datei mit diesem Namen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Wird exportiert…</translation>
    </message>
    <message>
        <source>No Label</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Where Ticklog is found</source>
        <translation>Wo Ticklog zu finden ist</translation>
    </message>
    <message>
        <source>Hide Dock Icon</source>
        <translation>Nicht in der Taskleiste anzeigen</translation>
    </message>
    <message>
        <source>Show Dock Icon</source>
        <translation>In der Taskleiste anzeigen</translation>
    </message>
    <message>
        <source>Hide Menubar Item</source>
        <translation>Nicht im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>Show Menubar Item</source>
        <translation>Im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&amp;Import Database…</source>
        <translation>&amp;Datenbank importieren…</translation>
    </message>
    <message>
        <source>&amp;Save a Copy As…</source>
        <translation>&amp;Kopie speichern unter…</translation>
    </message>
    <message>
        <source>&amp;Choose Database Location…</source>
        <translation>&amp;Speicherort der Datenbank wählen…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Database Location</source>
        <translation>S&amp;tandardspeicherort wiederherstellen</translation>
    </message>
    <message>
        <source>Show &amp;Database in File Manager</source>
        <translation>Datenbank im Datei&amp;manager anzeigen</translation>
    </message>
    <message>
        <source>E&amp;xport Shown Timers to CSV…</source>
        <translation>Angezeigte Timer als &amp;CSV exportieren…</translation>
    </message>
    <message>
        <source>Export &amp;All Timers to CSV…</source>
        <translation>&amp;Alle Timer als CSV exportieren…</translation>
    </message>
    <message>
        <source>C&amp;lose Window</source>
        <translation>&amp;Fenster schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Summary Time</source>
        <translation>&amp;Summe kopieren</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>D&amp;eselect All</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>Edit Ru&amp;les…</source>
        <translation>Re&amp;geln bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>&amp;Alle aufklappen</translation>
    </message>
    <message>
        <source>&amp;Projects</source>
        <translation>&amp;Projekte</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Neues Projekt</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>&amp;Freeze All Timers of the Project</source>
        <translation>Alle Timer des Projekts ein&amp;frieren</translation>
    </message>
    <message>
        <source>D&amp;elete Project…</source>
        <translation>Projekt &amp;löschen…</translation>
    </message>
    <message>
        <source>&amp;Freeze</source>
        <translation>Ein&amp;frieren</translation>
    </message>
    <message>
        <source>Clear Timers</source>
        <translation>Timer zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;About Ticklog</source>
        <translation>Ü&amp;ber Ticklog</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Timer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Mindestens</translation>
    </message>
    <message>
        <source>Leaves out timers that have less time than this</source>
        <translation>Blendet Timer aus, die weniger Zeit haben</translation>
    </message>
    <message>
        <source>Copies the sum in words</source>
        <translation>Kopiert die Summe mit ausgeschriebenen Einheiten</translation>
    </message>
    <message>
        <source>%@ (build %@)</source>
        <translation>%@ (Build %@)</translation>
    </message>
    <message>
        <source>Are you sure you wish to clear the currently visible timers?</source>
        <translation>Möchten Sie alle Timer zurücksetzen? Ihre Zeiten und Zeilen werden entfernt.</translation>
    </message>
    <message>
        <source>Set storage database location.</source>
        <translation>Speicherort der Datenbank wählen</translation>
    </message>
    <message>
        <source>The database could not be copied.</source>
        <translation>Die Datenbank konnte nicht kopiert werden.</translation>
    </message>
    <message>
        <source>No timer matches the search.</source>
        <translation>Kein Timer entspricht der Suche.</translation>
    </message>
    <message>
        <source>This project is empty. Drag timers from “All Timers” onto it.</source>
        <translation>Dieses Projekt ist leer. Ziehen Sie Timer aus „Alle Timer“ darauf.</translation>
    </message>
    <message>
        <source>No timer reaches the minimum time.</source>
        <translation>Kein Timer erreicht die Mindestzeit.</translation>
    </message>
    <message>
        <source>Press Start and carry on working. Your programs will appear here.</source>
        <translation>Klicken Sie auf „Start“ und arbeiten Sie weiter. Die Programme, die Sie benutzen, erscheinen hier.</translation>
    </message>
    <message>
        <source>Replacing timers</source>
        <translation>Timer ersetzen</translation>
    </message>
    <message>
        <source>Importing timers will replace all current timers. Your current timers will be saved in a backup file next to the Ticklog database.</source>
        <translation>Beim Importieren werden alle jetzigen Timer ersetzt. Sie werden zuvor in einer Sicherungsdatei neben der Ticklog-Datenbank gespeichert.</translation>
    </message>
    <message>
        <source>Import Database</source>
        <translation>Datenbank importieren</translation>
    </message>
    <message>
        <source>Save a Copy As</source>
        <translation>Kopie speichern unter</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>Die Kopie konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Found in selection</source>
        <translation>In Auswahl gefunden</translation>
    </message>
    <message>
        <source>total
%@</source>
        <translation>gesamt
%@</translation>
    </message>
    <message>
        <source>project
%@</source>
        <translation>Projekt
%@</translation>
    </message>
    <message>
        <source>selected
%@</source>
        <translation>ausgewählt
%@</translation>
    </message>
    <message>
        <source>found
%@</source>
        <translation>gefunden
%@</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>eingefroren</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Time Spent</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>&amp;Block from the list</source>
        <translation>In &amp;Berichten auslassen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Neuer Name:</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Kategorien:</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Press comma or Enter to add; press Delete to remove.</source>
        <translation>Mit Komma oder Eingabetaste hinzufügen, mit Entf entfernen.</translation>
    </message>
    <message>
        <source>&amp;Application:</source>
        <translation>&amp;Programm:</translation>
    </message>
    <message>
        <source>&amp;Archive and clear all timers by schedule</source>
        <translation>Alle Timer nach &amp;Zeitplan archivieren und zurücksetzen</translation>
    </message>
    <message>
        <source>At the chosen time all timers are saved to a file named after the day, and start again from zero.</source>
        <translation>Zur gewählten Zeit werden alle Timer in einer nach dem Tag benannten Datei gespeichert und beginnen wieder bei null.</translation>
    </message>
    <message>
        <source>Data&amp;base:</source>
        <translation>Daten&amp;bank:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>&amp;Restore Default</source>
        <translation>Standa&amp;rd wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>Im Datei&amp;manager anzeigen</translation>
    </message>
    <message>
        <source>CSV table</source>
        <translation>CSV-Tabelle</translation>
    </message>
    <message>
        <source>Ticklog database</source>
        <translation>Ticklog-Datenbank</translation>
    </message>
    <message>
        <source>CSV table and Ticklog database</source>
        <translation>CSV-Tabelle und Ticklog-Datenbank</translation>
    </message>
    <message>
        <source>Weekdays of the archive</source>
        <translation>Wochentage der Archivierung</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Wä&amp;hlen…</translation>
    </message>
    <message>
        <source>&amp;Time of day:</source>
        <translation>&amp;Uhrzeit:</translation>
    </message>
    <message>
        <source>&amp;Weekdays:</source>
        <translation>Wochen&amp;tage:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>No day is chosen: nothing is archived.</source>
        <translation>Kein Tag gewählt: Es wird nichts archiviert.</translation>
    </message>
    <message>
        <source>Archived on: </source>
        <translation>Archiviert am: </translation>
    </message>
    <message>
        <source>Task bar and system tray</source>
        <translation>Taskleiste und Infobereich</translation>
    </message>
    <message>
        <source>Task bar</source>
        <translation>Taskleiste</translation>
    </message>
    <message>
        <source>System tray</source>
        <translation>Infobereich</translation>
    </message>
    <message>
        <source>Include &amp;idle time</source>
        <translation>&amp;Leerlaufzeit einbeziehen</translation>
    </message>
    <message>
        <source>Include time spent in &amp;Ticklog</source>
        <translation>Zeit in &amp;Ticklog einbeziehen</translation>
    </message>
    <message>
        <source>Include &amp;seconds</source>
        <translation>&amp;Sekunden einbeziehen</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Summe:</translation>
    </message>
    <message>
        <source>Copied times:</source>
        <translation>Kopierte Zeiten:</translation>
    </message>
    <message>
        <source>Include idle time in the total</source>
        <translation>Leerlaufzeit in die Summe einbeziehen</translation>
    </message>
    <message>
        <source>Include time spent in Ticklog in the total</source>
        <translation>Zeit in Ticklog in die Summe einbeziehen</translation>
    </message>
    <message>
        <source>Include seconds in copied times</source>
        <translation>Sekunden in kopierte Zeiten einbeziehen</translation>
    </message>
    <message>
        <source>Start Ticklog when I &amp;log in</source>
        <translation>Ticklog bei der &amp;Anmeldung starten</translation>
    </message>
    <message>
        <source>&amp;Count time without input as idle</source>
        <translation>Zeit ohne &amp;Eingaben als Leerlauf zählen</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Minutes without input until time counts as idle</source>
        <translation>Minuten ohne Eingaben, bis die Zeit als Leerlauf zählt</translation>
    </message>
    <message>
        <source>Idle time:</source>
        <translation>Leerlauf:</translation>
    </message>
    <message>
        <source>&amp;After:</source>
        <translation>&amp;Nach:</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message>
        <source>D&amp;uplicate…</source>
        <translation>&amp;Duplizieren…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Delete the rule?</source>
        <translation>Regel löschen?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Category. Press Delete to remove it.</source>
        <translation>Kategorie. Mit Entf entfernen.</translation>
    </message>
    <message>
        <source>For Ticklog to function you must grant it access to your computer.</source>
        <translation>Ticklog braucht die Bedienungshilfen Ihrer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Follow these simple steps and Ticklog will be running in no time.</source>
        <translation>Folgen Sie diesen Schritten, dann kann Ticklog zählen.</translation>
    </message>
    <message>
        <source>Launch the Security &amp; Privacy panel in the System Preferences.</source>
        <translation>Öffnen Sie die Einstellungen Ihrer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Select the Privacy tab and unlock the padlock to allow settings changes.</source>
        <translation>Gehen Sie zur Seite der Bedienungshilfen.</translation>
    </message>
    <message>
        <source>Select the Accessibility group and drag Ticklog into the list on the right.</source>
        <translation>Schalten Sie die Dienste für Bedienungshilfen ein.</translation>
    </message>
    <message>
        <source>Finally tick the checkbox associated with Ticklog and restart Ticklog.</source>
        <translation>Starten Sie Ticklog neu.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Aktueller Schritt</translation>
    </message>
    <message>
        <source>Ticklog monitors the active time spent in each application. To enable this tracking you must give Ticklog permission to gather this data from the system.</source>
        <translation>Ticklog zählt die Zeit, die Sie in jedem Programm verbringen. Dazu braucht es Ihre Erlaubnis, die Arbeitsumgebung zu fragen.</translation>
    </message>
    <message>
        <source>Security protections built into OS X prevent monitoring the status of other applications without user authorization. In order to protect your privacy, this action will authorize Ticklog to track your applications while maintaining the normal system wide security precautions.</source>
        <translation>Die Arbeitsumgebung schützt Ihre Privatsphäre: Ohne Ihre Erlaubnis darf kein Programm die anderen beobachten. Hiermit erhält Ticklog die Erlaubnis; alles andere bleibt geschützt wie bisher.</translation>
    </message>
    <message>
        <source>Authorize Ticklog</source>
        <translation>Ticklog erlauben</translation>
    </message>
    <message>
        <source>Cancel Start</source>
        <translation>Start abbrechen</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Secuirty &gt; Privacy &gt; Accessibility system preferences.</source>
        <translation>Schalten Sie in den Einstellungen Ihrer Arbeitsumgebung die Bedienungshilfen ein.</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Universal Access system preferences.</source>
        <translation>Schalten Sie in den Einstellungen Ihrer Arbeitsumgebung die Bedienungshilfen ein.</translation>
    </message>
    <message>
        <source>An error was encountered.</source>
        <translation>Ein Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>Open Preference Panel</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Ticklog is counting</source>
        <translation>Ticklog zählt</translation>
    </message>
    <message>
        <source>Ticklog is paused</source>
        <translation>Ticklog pausiert</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>There is no system tray.</source>
        <translation>Es gibt keinen Infobereich.</translation>
    </message>
    <message>
        <source>Ticklog therefore stays in the task bar, and its menu is in the main window. It moves to the tray as soon as there is one.</source>
        <translation>Ticklog bleibt deshalb in der Taskleiste, und sein Menü ist im Hauptfenster. Es wechselt in den Infobereich, sobald es einen gibt.</translation>
    </message>
    <message>
        <source>Ticklog databases</source>
        <translation>Ticklog-Datenbanken</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>CSV-Dateien</translation>
    </message>
    <message>
        <source>Application Times</source>
        <translation>Programmzeiten</translation>
    </message>
    <message>
        <source>Show Time Window</source>
        <translation>Ticklog anzeigen</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Über Ticklog</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>About Ticklog</source>
        <translation>Über Ticklog</translation>
    </message>
    <message>
        <source>Delete Project</source>
        <translation>Projekt löschen</translation>
    </message>
    <message>
        <source>Add to Project</source>
        <translation>Zum Projekt hinzufügen</translation>
    </message>
    <message>
        <source>Rename Project</source>
        <translation>Projekt umbenennen</translation>
    </message>
    <message>
        <source>The timer set &quot;%@&quot; will be deleted.</source>
        <translation>Das Projekt „%@“ wird gelöscht.</translation>
    </message>
    <message>
        <source>Delete selected timer set?</source>
        <translation>Das ausgewählte Projekt löschen?</translation>
    </message>
    <message>
        <source>Move Project</source>
        <translation>Projekt verschieben</translation>
    </message>
    <message>
        <source>Remove from Project</source>
        <translation>Aus dem Projekt entfernen</translation>
    </message>
    <message>
        <source>Label Project</source>
        <translation>Projektfarbe ändern</translation>
    </message>
    <message>
        <source>Copy Project</source>
        <translation>Projekt kopieren</translation>
    </message>
    <message>
        <source>Ticklog cannot see other programs’ windows</source>
        <translation>Ticklog sieht die Fenster anderer Programme nicht</translation>
    </message>
    <message>
        <source>To count the time spent in each window, it needs the accessibility services of the desktop. Start the timer again when they are turned on.</source>
        <translation>Um die Zeit in jedem Fenster zu zählen, braucht es die Bedienungshilfen der Arbeitsumgebung. Starten Sie den Timer erneut, wenn sie eingeschaltet sind.</translation>
    </message>
    <message>
        <source>Turn On</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Delete &amp;Without Asking</source>
        <translation>&amp;Ohne Nachfrage löschen</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Alle &amp;zuklappen</translation>
    </message>
    <message>
        <source>&amp;Rename Project</source>
        <translation>Projekt &amp;umbenennen</translation>
    </message>
    <message>
        <source>Sho&amp;w Ticklog in:</source>
        <translation>Ticklog anzeigen &amp;in:</translation>
    </message>
    <message>
        <source>Ticklog cannot be started at login.</source>
        <translation>Ticklog kann nicht bei der Anmeldung gestartet werden.</translation>
    </message>
    <message>
        <source>Ticklog is still started at login.</source>
        <translation>Ticklog wird weiterhin bei der Anmeldung gestartet.</translation>
    </message>
    <message>
        <source>Plasma tells only installed programs which window is in front. Install Ticklog, and start it from the menu.</source>
        <translation>Plasma teilt nur installierten Programmen mit, welches Fenster vorn ist. Installieren Sie Ticklog und starten Sie es aus dem Menü.</translation>
    </message>
    <message>
        <source>This Wayland desktop no longer tells other programs which window is in front.</source>
        <translation>Diese Wayland-Arbeitsumgebung teilt anderen Programmen nicht mehr mit, welches Fenster vorn ist.</translation>
    </message>
    <message>
        <source>GNOME Shell tells which window is in front only to its extensions, and the one that belongs to Ticklog is not running.</source>
        <translation>Die GNOME Shell teilt nur ihren Erweiterungen mit, welches Fenster vorn ist, und die von Ticklog läuft nicht.</translation>
    </message>
    <message>
        <source>GNOME Shell tells this only to its extensions. The one that comes with Ticklog tells Ticklog, and no other program, which windows are on the screen. Without it Ticklog sees only some programs.</source>
        <translation>Die GNOME Shell teilt dies nur ihren Erweiterungen mit. Die von Ticklog teilt Ticklog, und keinem anderen Programm, mit, welche Fenster auf dem Bildschirm sind. Ohne sie sieht Ticklog nur manche Programme.</translation>
    </message>
    <message>
        <source>Ticklog needs an extension of GNOME Shell to see which window is in front.</source>
        <translation>Ticklog braucht eine Erweiterung der GNOME Shell, um zu sehen, welches Fenster vorn ist.</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Don&apos;t Ask Again</source>
        <translation>Nicht mehr fragen</translation>
    </message>
    <message>
        <source>GNOME Shell finds new extensions at login: log out and in again once it is installed.</source>
        <translation>Die GNOME Shell findet neue Erweiterungen bei der Anmeldung: Melden Sie sich nach der Installation ab und wieder an.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>The extension could not be installed.</source>
        <translation>Die Erweiterung konnte nicht installiert werden.</translation>
    </message>
    <message>
        <source>Until then, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Bis dahin sieht Ticklog nur Programme, die den Bedienungshilfen ihre Fenster mitteilen; alle andere Zeit zählt als „Arbeitsumgebung“.</translation>
    </message>
    <message>
        <source>GNOME Shell’s switch for all extensions is off. It is turned on as well, and with it the other extensions that are chosen there.</source>
        <translation>In der GNOME Shell ist der Schalter für alle Erweiterungen aus. Er wird mit eingeschaltet, und damit auch die anderen Erweiterungen, die dort gewählt sind.</translation>
    </message>
    <message>
        <source>GNOME Shell has not turned the extension on.</source>
        <translation>Die GNOME Shell hat die Erweiterung nicht eingeschaltet.</translation>
    </message>
    <message>
        <source>Turn it on in the program “Extensions”, together with the switch for all extensions. If you cannot, the administrator of this computer does not allow it.</source>
        <translation>Schalten Sie sie im Programm „Erweiterungen“ ein, zusammen mit dem Schalter für alle Erweiterungen. Geht das nicht, so lässt es die Verwaltung dieses Rechners nicht zu.</translation>
    </message>
    <message>
        <source>Set Up...</source>
        <translation>Einrichten…</translation>
    </message>
    <message>
        <source>Why Are Windows Not Counted?</source>
        <translation>Warum werden Fenster nicht gezählt?</translation>
    </message>
    <message>
        <source>GNOME Shell does not tell programs in a sandbox which window is in front. Installed outside of one, Ticklog can be told.</source>
        <translation>GNOME Shell teilt Programmen in einer Sandbox nicht mit, welches Fenster vorn ist. Außerhalb einer Sandbox installiert, erfährt es Ticklog.</translation>
    </message>
    <message>
        <source>Ticklog runs in a sandbox and cannot change what starts with your session. The desktop’s settings can.</source>
        <translation>Ticklog läuft in einer Sandbox und kann nicht ändern, was mit Ihrer Sitzung startet. In den Einstellungen der Arbeitsumgebung geht das.</translation>
    </message>
    <message>
        <source>The desktop has stopped responding. Until it responds, no window’s time is counted.</source>
        <translation>Die Arbeitsumgebung antwortet nicht mehr. Bis sie wieder antwortet, wird für kein Fenster Zeit gezählt.</translation>
    </message>
    <message>
        <source>Ticklog’s extension does not support GNOME Shell %@ yet.</source>
        <translation>Die Erweiterung von Ticklog unterstützt die GNOME Shell %@ noch nicht.</translation>
    </message>
    <message>
        <source>Ticklog was started without knowing of the Wayland desktop, so it sees only programs that run through the X server. Start Ticklog from the desktop’s menu.</source>
        <translation>Ticklog wurde gestartet, ohne von der Wayland-Arbeitsumgebung zu wissen, und sieht daher nur Programme, die über den X-Server laufen. Starten Sie Ticklog aus dem Menü der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Until it runs, no window’s time is counted.</source>
        <translation>Bis sie läuft, wird für kein Fenster Zeit gezählt.</translation>
    </message>
    <message>
        <source>Until it runs, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Bis sie läuft, sieht Ticklog nur Programme, die den Bedienungshilfen ihre Fenster mitteilen; alle andere Zeit zählt als „Arbeitsumgebung“.</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Einfrieren</translation>
    </message>
    <message>
        <source>“%@” is in a folder where others may write: they could replace it.</source>
        <translation>„%@“ liegt in einem Ordner, in den andere schreiben dürfen. Sie könnten die Datei austauschen.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is missing.</source>
        <translation>„%@“ kann nicht gespeichert werden: Der Ordner fehlt.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is read-only.</source>
        <translation>„%@“ kann nicht gespeichert werden: Der Ordner ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: the disk is full.</source>
        <translation>„%@“ kann nicht gespeichert werden: Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved.</source>
        <translation>„%@“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>“%@” could not be read. It was set aside, and Ticklog has started without it.</source>
        <translation>„%@“ konnte nicht gelesen werden. Die Datei wurde beiseitegelegt, und Ticklog hat ohne sie begonnen.</translation>
    </message>
    <message>
        <source>Some entries of “%@” are damaged and were left out. The damaged file is kept beside it.</source>
        <translation>Einige Einträge von „%@“ sind beschädigt und wurden ausgelassen. Die Datei bleibt daneben erhalten.</translation>
    </message>
    <message>
        <source>“%@” could not be read. Ticklog continues with the last settings that it kept.</source>
        <translation>„%@“ konnte nicht gelesen werden. Ticklog arbeitet mit den zuletzt gespeicherten Einstellungen weiter.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be moved to its folder. It lies beside the database.</source>
        <translation>Das Archiv „%@“ konnte nicht in seinen Ordner gelegt werden. Es liegt neben der Datenbank.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be written anywhere.</source>
        <translation>Das Archiv „%@“ konnte nirgends geschrieben werden.</translation>
    </message>
    <message>
        <source>The database “%@” is missing. What is counted until it is back will be added to it.</source>
        <translation>Die Datenbank „%@“ fehlt. Was gezählt wird, bis sie wieder da ist, wird ihr hinzugefügt.</translation>
    </message>
    <message>
        <source>No backup could be made, so nothing was changed.</source>
        <translation>Es konnte keine Sicherung angelegt werden, daher wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The timers could not be imported.</source>
        <translation>Die Timer konnten nicht importiert werden.</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Export &amp;Project…</source>
        <translation>&amp;Projekt exportieren…</translation>
    </message>
    <message>
        <source>No timer that matches the search reaches the minimum time.</source>
        <translation>Kein Timer, der der Suche entspricht, erreicht die Mindestzeit.</translation>
    </message>
    <message>
        <source>Export All Timers to CSV, Narrowed by the Search</source>
        <translation>Alle Timer als CSV exportieren, eingeschränkt durch die Suche</translation>
    </message>
    <message>
        <source>Export All Timers to CSV</source>
        <translation>Alle Timer als CSV exportieren</translation>
    </message>
    <message>
        <source>Export Project to CSV</source>
        <translation>Projekt als CSV exportieren</translation>
    </message>
    <message>
        <source>Ticklog keeps running in the task bar.</source>
        <translation>Ticklog läuft in der Taskleiste weiter.</translation>
    </message>
    <message>
        <source>There is no tray icon that could bring a closed window back, so closing the window minimizes it and Ticklog keeps running. “Quit” ends Ticklog.</source>
        <translation>Kein Symbol im Infobereich führt zu einem geschlossenen Fenster zurück. Schließen minimiert es deshalb, und Ticklog läuft weiter. „Beenden“ beendet es.</translation>
    </message>
    <message>
        <source>There are more timers than one database can hold: %@ at the most.</source>
        <translation>Es sind mehr Timer, als eine Datenbank fasst: höchstens %@.</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Wird importiert…</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front. Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Diese Wayland-Arbeitsumgebung teilt anderen Programmen nicht mit, welches Fenster vorn ist. Ticklog sieht nur Programme, die den Bedienungshilfen ihre Fenster mitteilen; alle andere Zeit zählt als „Arbeitsumgebung“.</translation>
    </message>
    <message>
        <source>“%@” was written by a newer version. It is left alone, and nothing is added to it.</source>
        <translation>„%@“ wurde von einer neueren Version geschrieben. Die Datei bleibt unverändert, und nichts kommt hinzu.</translation>
    </message>
    <message>
        <source>No history is kept.</source>
        <translation>Es wird kein Verlauf geführt.</translation>
    </message>
    <message>
        <source>until</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>&amp;Forget…</source>
        <translation>&amp;Vergessen…</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Any title</source>
        <translation>Beliebiger Titel</translation>
    </message>
    <message>
        <source>At any time</source>
        <translation>Beliebige Zeit</translation>
    </message>
    <message>
        <source>On the day</source>
        <translation>Am Tag</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programm:</translation>
    </message>
    <message>
        <source>&amp;Title contains:</source>
        <translation>&amp;Titel enthält:</translation>
    </message>
    <message>
        <source>&amp;When:</source>
        <translation>&amp;Wann:</translation>
    </message>
    <message>
        <source>The history forgets it for good. Timers keep their names and times; to remove those, delete their rows.</source>
        <translation>Der Verlauf vergisst es für immer. Timer behalten Namen und Zeit; um diese zu entfernen, löschen Sie ihre Zeilen.</translation>
    </message>
    <message>
        <source>What would be forgotten</source>
        <translation>Was vergessen wird</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Alle Programme</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>Der Verlauf kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Forget this for good?</source>
        <translation>Dies für immer vergessen?</translation>
    </message>
    <message>
        <source>It is removed from the file at once. This cannot be undone.</source>
        <translation>Es wird sofort aus der Datei entfernt. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>It is being forgotten…</source>
        <translation>Es wird vergessen…</translation>
    </message>
    <message>
        <source>It is forgotten.</source>
        <translation>Es ist vergessen.</translation>
    </message>
    <message>
        <source>It is not forgotten yet, because the history cannot be saved at the moment. Ticklog keeps trying.</source>
        <translation>Es ist noch nicht vergessen, weil der Verlauf gerade nicht gespeichert werden kann. Ticklog versucht es weiter.</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Für immer</translation>
    </message>
    <message>
        <source>For five years</source>
        <translation>Fünf Jahre</translation>
    </message>
    <message>
        <source>For a year</source>
        <translation>Ein Jahr</translation>
    </message>
    <message>
        <source>For 90 days</source>
        <translation>90 Tage</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Gar nicht</translation>
    </message>
    <message>
        <source>The history records which title was in front, and when. It stays on this machine, in a file that only you can read, and lets the timers lose no more than 15 seconds in a crash.</source>
        <translation>Der Verlauf hält fest, wann welcher Titel vorn war. Er bleibt auf diesem Rechner, in einer Datei, die nur Sie lesen können. Dank ihm verlieren die Timer bei einem Absturz höchstens 15 Sekunden.</translation>
    </message>
    <message>
        <source>&amp;Keep the history:</source>
        <translation>Verlauf &amp;behalten:</translation>
    </message>
    <message>
        <source>A &amp;day begins at:</source>
        <translation>Ein &amp;Tag beginnt um:</translation>
    </message>
    <message>
        <source>For %@ days</source>
        <translation>%@ Tage</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Titles: %@</source>
        <translation>Titel: %@</translation>
    </message>
    <message>
        <source>Time spent: %@</source>
        <translation>Zeit: %@</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Stop keeping a history?</source>
        <translation>Keinen Verlauf mehr führen?</translation>
    </message>
    <message>
        <source>Forget what is older?</source>
        <translation>Vergessen, was älter ist?</translation>
    </message>
    <message>
        <source>Its file is removed at once. This cannot be undone. Timers keep their times, but a crash may cost them the last 15 minutes.</source>
        <translation>Seine Datei wird sofort entfernt. Das lässt sich nicht rückgängig machen. Timer behalten ihre Zeit, aber ein Absturz kann sie die letzten 15 Minuten kosten.</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Rule for Titles</source>
        <translation>Regel für Titel</translation>
    </message>
    <message>
        <source>How the title is found</source>
        <translation>Wie der Titel gefunden wird</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>matches the expression</source>
        <translation>entspricht dem Ausdruck</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>&amp;Program contains:</source>
        <translation>&amp;Programm enthält:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Effect:</source>
        <translation>&amp;Wirkung:</translation>
    </message>
    <message>
        <source>&amp;New text:</source>
        <translation>&amp;Neuer Text:</translation>
    </message>
    <message>
        <source>This expression cannot be read: %@</source>
        <translation>Dieser Ausdruck ist nicht lesbar: %@</translation>
    </message>
    <message>
        <source>This expression is wrong: %@</source>
        <translation>Falscher Ausdruck: %@</translation>
    </message>
    <message>
        <source>Private windows of browsers</source>
        <translation>Private Fenster von Browsern</translation>
    </message>
    <message>
        <source>Keep the title</source>
        <translation>Titel behalten</translation>
    </message>
    <message>
        <source>Replace the title</source>
        <translation>Titel ersetzen</translation>
    </message>
    <message>
        <source>Count as “Private”</source>
        <translation>Als „Privat“ zählen</translation>
    </message>
    <message>
        <source>Leave the title out</source>
        <translation>Titel auslassen</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Wirkung</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Rules for titles</source>
        <translation>Regeln für Titel</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Matching Titles…</source>
        <translation>&amp;Treffer…</translation>
    </message>
    <message>
        <source>Apply to the &amp;Past…</source>
        <translation>Auf &amp;Vergangenes anwenden…</translation>
    </message>
    <message>
        <source>What these rules hide is never written. The first rule that matches decides.</source>
        <translation>Was diese Regeln verbergen, wird nie geschrieben. Die erste passende entscheidet.</translation>
    </message>
    <message>
        <source>Titles of the Last 7 Days</source>
        <translation>Titel der letzten 7 Tage</translation>
    </message>
    <message>
        <source>The rules match nothing in the past.</source>
        <translation>Die Regeln treffen auf nichts Vergangenes zu.</translation>
    </message>
    <message>
        <source>Timers: %@</source>
        <translation>Timer: %@</translation>
    </message>
    <message>
        <source>Apply the rules to the past?</source>
        <translation>Die Regeln auf Vergangenes anwenden?</translation>
    </message>
    <message>
        <source>What they hide is removed for good from the history, the timers and the projects. Neither this nor any earlier step can be undone. Archives and backups stay as they are.</source>
        <translation>Was sie verbergen, wird für immer aus Verlauf, Timern und Projekten entfernt. Weder das noch frühere Schritte lassen sich rückgängig machen. Archive und Sicherungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Pa&amp;tterns…</source>
        <translation>&amp;Muster…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Program contains</source>
        <translation>Programm enthält</translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation>Titel enthält</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Whatever matches belongs to the project in the history and in reports, past time included. The project’s own timers stay as they are.</source>
        <translation>Was passt, gehört im Verlauf und in Berichten zum Projekt, auch in der Vergangenheit. Die Timer des Projekts bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The title is a regular expression</source>
        <translation>Der Titel ist ein regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Change Patterns</source>
        <translation>Muster ändern</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>Vo&amp;rwärts</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Woche</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Monat</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Jahr</translation>
    </message>
    <message>
        <source>F&amp;rom – To…</source>
        <translation>V&amp;on – bis…</translation>
    </message>
    <message>
        <source>By &amp;Program</source>
        <translation>Nach &amp;Programm</translation>
    </message>
    <message>
        <source>By Pro&amp;ject</source>
        <translation>Nach Proje&amp;kt</translation>
    </message>
    <message>
        <source>Nothing here reaches the minimum time.</source>
        <translation>Hier erreicht nichts die Mindestzeit.</translation>
    </message>
    <message>
        <source>Nothing in this time matches the search.</source>
        <translation>In dieser Zeit passt nichts zur Suche.</translation>
    </message>
    <message>
        <source>No work for this project in this time.</source>
        <translation>In dieser Zeit wurde nicht für dieses Projekt gearbeitet.</translation>
    </message>
    <message>
        <source>This time is still to come.</source>
        <translation>Diese Zeit kommt erst noch.</translation>
    </message>
    <message>
        <source>No work was recorded in this time.</source>
        <translation>In dieser Zeit wurde keine Arbeit aufgezeichnet.</translation>
    </message>
    <message>
        <source>Ticklog History</source>
        <translation>Ticklog-Verlauf</translation>
    </message>
    <message>
        <source>The history could not be exported.</source>
        <translation>Der Verlauf konnte nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Opens a calendar</source>
        <translation>Öffnet einen Kalender</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>&amp;Timers</source>
        <translation>&amp;Timer</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>H&amp;istory</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>The day</source>
        <translation>Der Tag</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Leerlauf</translation>
    </message>
    <message>
        <source>Project %@</source>
        <translation>Projekt %@</translation>
    </message>
    <message>
        <source>%@ more</source>
        <translation>%@ weitere</translation>
    </message>
    <message>
        <source>The period</source>
        <translation>Der Zeitraum</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>Week of %@</source>
        <translation>Woche vom %@</translation>
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
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time &amp;Sheet…</source>
        <translation>&amp;Stundenzettel…</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>Kein Projekt</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Time Sheet</source>
        <translation>Stundenzettel</translation>
    </message>
    <message>
        <source>Measured: %@</source>
        <translation>Gemessen: %@</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>No Rounding</source>
        <translation>Nicht runden</translation>
    </message>
    <message>
        <source>6 Minutes</source>
        <translation>6 Minuten</translation>
    </message>
    <message>
        <source>15 Minutes</source>
        <translation>15 Minuten</translation>
    </message>
    <message>
        <source>30 Minutes</source>
        <translation>30 Minuten</translation>
    </message>
    <message>
        <source>Direction of rounding</source>
        <translation>Richtung der Rundung</translation>
    </message>
    <message>
        <source>To the Nearest</source>
        <translation>Kaufmännisch runden</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufrunden</translation>
    </message>
    <message>
        <source>What is rounded</source>
        <translation>Was gerundet wird</translation>
    </message>
    <message>
        <source>Each Cell</source>
        <translation>Jede Zelle</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Jeder Tag</translation>
    </message>
    <message>
        <source>Form of times</source>
        <translation>Darstellung der Zeiten</translation>
    </message>
    <message>
        <source>Hours and Minutes</source>
        <translation>Stunden und Minuten</translation>
    </message>
    <message>
        <source>Decimal Hours</source>
        <translation>Dezimalstunden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Save as C&amp;SV…</source>
        <translation>Als C&amp;SV speichern…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Als &amp;PDF speichern…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Save the Time Sheet as CSV</source>
        <translation>Den Stundenzettel als CSV speichern</translation>
    </message>
    <message>
        <source>The time sheet could not be saved.</source>
        <translation>Der Stundenzettel konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Save the Time Sheet as PDF</source>
        <translation>Den Stundenzettel als PDF speichern</translation>
    </message>
    <message>
        <source>Today: %@</source>
        <translation>Heute: %@</translation>
    </message>
    <message>
        <source>Pause For</source>
        <translation>Pause für</translation>
    </message>
    <message>
        <source>An Hour</source>
        <translation>Eine Stunde</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>Bis morgen</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>&amp;Give to Project</source>
        <translation>&amp;Einem Projekt zuordnen</translation>
    </message>
    <message>
        <source>&amp;Name This Time…</source>
        <translation>Diese Zeit &amp;benennen…</translation>
    </message>
    <message>
        <source>Boo&amp;k Time…</source>
        <translation>Zeit bu&amp;chen…</translation>
    </message>
    <message>
        <source>Forg&amp;et This Time…</source>
        <translation>Diese Zeit &amp;vergessen…</translation>
    </message>
    <message>
        <source>Booked by hand on %1</source>
        <translation>Von Hand gebucht am %1</translation>
    </message>
    <message>
        <source>Given to its project by hand on %1</source>
        <translation>Dem Projekt von Hand zugeordnet am %1</translation>
    </message>
    <message>
        <source>Named by hand on %1, before: %2</source>
        <translation>Von Hand benannt am %1, vorher: %2</translation>
    </message>
    <message>
        <source>By Hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>&amp;No Project</source>
        <translation>&amp;Kein Projekt</translation>
    </message>
    <message>
        <source>Give to Project</source>
        <translation>Einem Projekt zuordnen</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Buchen</translation>
    </message>
    <message>
        <source>Boo&amp;k</source>
        <translation>&amp;Buchen</translation>
    </message>
    <message>
        <source>Book Time</source>
        <translation>Zeit buchen</translation>
    </message>
    <message>
        <source>&amp;Begin:</source>
        <translation>B&amp;eginn:</translation>
    </message>
    <message>
        <source>&amp;End:</source>
        <translation>E&amp;nde:</translation>
    </message>
    <message>
        <source>&amp;What was it?</source>
        <translation>&amp;Was war es?</translation>
    </message>
    <message>
        <source>&amp;Project:</source>
        <translation>&amp;Projekt:</translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation>Das Ende liegt vor dem Beginn.</translation>
    </message>
    <message>
        <source>No time is free there: you worked then, or it is still to come.</source>
        <translation>Dort ist keine Zeit frei: Sie haben da gearbeitet, oder die Zeit kommt erst noch.</translation>
    </message>
    <message>
        <source>%1 of it is free. Time that you worked stays as it is.</source>
        <translation>Davon sind %1 frei. Gearbeitete Zeit bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Named by hand</source>
        <translation>Von Hand benannt</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Benennen</translation>
    </message>
    <message>
        <source>Name This Time</source>
        <translation>Diese Zeit benennen</translation>
    </message>
    <message>
        <source>The time stays with its programs. The history notes what was changed by hand.</source>
        <translation>Die Zeit bleibt bei ihren Programmen. Der Verlauf hält fest, was von Hand geändert wurde.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Verk&amp;leinern</translation>
    </message>
    <message>
        <source>Reset &amp;Zoom</source>
        <translation>Vergrößerung z&amp;urücksetzen</translation>
    </message>
    <message>
        <source>Start the timer to record where your time goes, and when.</source>
        <translation>Starten Sie den Timer, um aufzuzeichnen, wohin Ihre Zeit geht und wann.</translation>
    </message>
    <message>
        <source>Add to &amp;Project</source>
        <translation>Zum &amp;Projekt hinzufügen</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt…</translation>
    </message>
    <message>
        <source>Absences</source>
        <translation>Abwesenheiten</translation>
    </message>
    <message>
        <source>Do not ask about these absences</source>
        <translation>Nicht nach diesen Abwesenheiten fragen</translation>
    </message>
    <message>
        <source>What the absence was</source>
        <translation>Was die Abwesenheit war</translation>
    </message>
    <message>
        <source>Project of the absence</source>
        <translation>Projekt der Abwesenheit</translation>
    </message>
    <message>
        <source>Book the absence as work</source>
        <translation>Die Abwesenheit als Arbeit buchen</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>The absence was not work</source>
        <translation>Die Abwesenheit war keine Arbeit</translation>
    </message>
    <message>
        <source>&amp;What did you do?</source>
        <translation>&amp;Was haben Sie getan?</translation>
    </message>
    <message>
        <source>You were away: %@</source>
        <translation>Sie waren weg: %@</translation>
    </message>
    <message>
        <source>Book the Absence</source>
        <translation>Abwesenheit buchen</translation>
    </message>
    <message>
        <source>You were away for %@</source>
        <translation>%@ weg gewesen</translation>
    </message>
    <message>
        <source>%@. What was it?</source>
        <translation>%@. Was war das?</translation>
    </message>
    <message>
        <source>Say…</source>
        <translation>Angeben…</translation>
    </message>
    <message>
        <source>%@ – %@ (%@)</source>
        <translation>%@ – %@ (%@)</translation>
    </message>
    <message>
        <source>&amp;Ask what an absence was</source>
        <translation>&amp;Fragen, was eine Abwesenheit war</translation>
    </message>
    <message>
        <source>When you come back, a notice and a bar in the window ask what you did. Your answer is booked by hand; without one, the time stays idle.</source>
        <translation>Wenn Sie zurückkommen, fragen eine Meldung und eine Leiste im Fenster, was Sie getan haben. Ihre Antwort wird von Hand gebucht; ohne Antwort bleibt die Zeit Leerlauf.</translation>
    </message>
    <message>
        <source>&amp;Shortest absence:</source>
        <translation>&amp;Kürzeste Abwesenheit:</translation>
    </message>
    <message>
        <source>The times could not be exported.</source>
        <translation>Die Zeiten konnten nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Export Shown &amp;Timers for Spreadsheets…</source>
        <translation>An&amp;gezeigte Timer für Tabellenkalkulation exportieren…</translation>
    </message>
    <message>
        <source>Copy for Spreadshee&amp;t</source>
        <translation>Für &amp;Tabellenkalkulation kopieren</translation>
    </message>
    <message>
        <source>A project shows all its timers, however little time they have</source>
        <translation>Ein Projekt zeigt alle seine Timer, auch die mit wenig Zeit</translation>
    </message>
    <message>
        <source>It is removed from the file at once. It can be undone until Ticklog ends.</source>
        <translation>Es wird sofort aus der Datei entfernt. Bis Ticklog endet, lässt sich das rückgängig machen.</translation>
    </message>
    <message>
        <source>Forget this?</source>
        <translation>Dies vergessen?</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>The history cannot be read at the moment.</source>
        <translation>Der Verlauf kann gerade nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of their rows.</source>
        <translation>Zeit, die zu mehreren Projekten gehört, steht in jeder ihrer Zeilen.</translation>
    </message>
    <message>
        <source>Total without %@</source>
        <translation>Gesamt ohne %@</translation>
    </message>
    <message>
        <source>Total without %@ and %@</source>
        <translation>Gesamt ohne %@ und %@</translation>
    </message>
    <message>
        <source>No history is kept. You can turn it on in the preferences, under History.</source>
        <translation>Es wird kein Verlauf geführt. Er lässt sich in den Einstellungen unter Verlauf einschalten.</translation>
    </message>
    <message>
        <source>Delete selected times</source>
        <translation>Die ausgewählten Zeilen löschen?</translation>
    </message>
    <message>
        <source>Are you sure you wish permanently delete the selected timing rows?</source>
        <translation>Ihre Zeiten werden mit gelöscht. „Rückgängig“ bringt sie zurück.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Private</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>Timer still running.</source>
        <translation>Der Timer läuft noch.</translation>
    </message>
    <message>
        <source>There is a timer currently running. Ticklog must remain open in order to keep track of time. Are you sure you wish to quit?</source>
        <translation>Ticklog muss offen bleiben, um Ihre Zeit zu zählen. Möchten Sie es beenden?</translation>
    </message>
    <message>
        <source>Remain Open</source>
        <translation>Offen lassen</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>Länge des Zeitraums</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Gruppierung</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>While its timer runs, Ticklog notes which program and which of its windows, by its title, is in front, and for how long.</source>
        <translation>Solange der Timer läuft, hält Ticklog fest, welches Programm und welches seiner Fenster (dem Titel nach) vorn ist und wie lange.</translation>
    </message>
    <message>
        <source>It notes no keys, no pictures and nothing of what is in a window; time without input goes to Idle.</source>
        <translation>Tastendrücke, Bilder und der Inhalt der Fenster werden nicht festgehalten; Zeit ohne Eingaben zählt als „Leerlauf“.</translation>
    </message>
    <message>
        <source>The record stays on this computer, in files that only you can read, and is sent nowhere.</source>
        <translation>Die Aufzeichnung bleibt auf diesem Rechner, in Dateien, die nur Sie lesen können, und wird nirgendwohin gesendet.</translation>
    </message>
    <message>
        <source>You can hide titles by rules, and delete or forget whatever was recorded, at any time.</source>
        <translation>Sie können jederzeit Titel durch Regeln ausblenden und löschen oder vergessen lassen, was aufgezeichnet wurde.</translation>
    </message>
    <message>
        <source>Start Ticklog when I log in</source>
        <translation>Ticklog bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Start the Timer</source>
        <translation>Timer starten</translation>
    </message>
    <message>
        <source>Welcome to Ticklog</source>
        <translation>Willkommen bei Ticklog</translation>
    </message>
    <message>
        <source>Hide Titles…</source>
        <translation>Titel ausblenden…</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>Noch nicht</translation>
    </message>
    <message>
        <source>Icons of &amp;programs</source>
        <translation>Symbole der &amp;Programme</translation>
    </message>
    <message>
        <source>A &amp;bar behind each time</source>
        <translation>Ein &amp;Balken hinter jeder Zeit</translation>
    </message>
    <message>
        <source>Titles without their program’s &amp;name</source>
        <translation>Titel ohne den Na&amp;men ihres Programms</translation>
    </message>
    <message>
        <source>Times of pro&amp;jects in the sidebar</source>
        <translation>Zeiten der Pro&amp;jekte in der Seitenleiste</translation>
    </message>
    <message>
        <source>Timers and projects show:</source>
        <translation>Timer und Projekte zeigen:</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Paste &amp;into Project</source>
        <translation>&amp;In Projekt einfügen</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Aufsteigend</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>A&amp;bsteigend</translation>
    </message>
    <message>
        <source>sorted, ascending</source>
        <translation>aufsteigend sortiert</translation>
    </message>
    <message>
        <source>sorted, descending</source>
        <translation>absteigend sortiert</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of them.</source>
        <translation>Zeit, die zu mehreren Projekten gehört, steht bei jedem von ihnen.</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>PDF-Dokumente</translation>
    </message>
    <message>
        <source>A row for each &amp;title</source>
        <translation>Eine Zeile für jeden &amp;Titel</translation>
    </message>
    <message>
        <source>A row for each &amp;title, in all programs</source>
        <translation>Eine Zeile für jeden &amp;Titel, in allen Programmen</translation>
    </message>
    <message>
        <source>All time is in your projects.</source>
        <translation>Alle Zeit ist in Ihren Projekten.</translation>
    </message>
    <message>
        <source>%@: a row for each title</source>
        <translation>%@: eine Zeile für jeden Titel</translation>
    </message>
    <message>
        <source>In reports, rules leave out, rename and categorize programs. A row for each title changes how the timers are kept.</source>
        <translation>In Berichten lassen Regeln Programme aus, benennen sie um und geben Kategorien. Eine Zeile für jeden Titel ändert, wie gezählt wird.</translation>
    </message>
    <message>
        <source>When a window gets another title, a new row begins instead of the window’s row getting its name. A title that comes back goes on in its old row. After switching this off, the row of a window’s latest title follows the window again, with the time it has.</source>
        <translation>Bekommt ein Fenster einen anderen Titel, beginnt eine neue Zeile; sonst bekäme die Zeile des Fensters dessen Namen. Ein Titel, der wiederkommt, wird in seiner alten Zeile weitergezählt. Nach dem Ausschalten folgt die Zeile des letzten Titels wieder dem Fenster, mit der Zeit, die sie hat.</translation>
    </message>
</context>
</TS>
