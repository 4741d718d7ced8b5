<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Ticklog</name>
    <message>
        <source>All Timers</source>
        <translation>Wszystkie liczniki</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Nowy projekt</translation>
    </message>
    <message>
        <source> (Frozen %@)</source>
        <translation> (Zamrożono %@)</translation>
    </message>
    <message>
        <source>%ld hour</source>
        <translation>%ld godz.</translation>
    </message>
    <message>
        <source>%ld hour-2</source>
        <translation>%ld godz.</translation>
    </message>
    <message>
        <source>%ld hours</source>
        <translation>%ld godz.</translation>
    </message>
    <message>
        <source>%ld minute</source>
        <translation>%ld min</translation>
    </message>
    <message>
        <source>%ld minute-2</source>
        <translation>%ld min</translation>
    </message>
    <message>
        <source>%ld minutes</source>
        <translation>%ld min</translation>
    </message>
    <message>
        <source>%ld second-0</source>
        <translation>%ld sek.</translation>
    </message>
    <message>
        <source>%ld second</source>
        <translation>%ld sek.</translation>
    </message>
    <message>
        <source>%ld second-2</source>
        <translation>%ld sek.</translation>
    </message>
    <message>
        <source>%ld seconds</source>
        <translation>%ld sek.</translation>
    </message>
    <message>
        <source>Database file (reset %@):</source>
        <translation>Liczniki ostatnio wyczyszczono: %@</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Uruchom</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front, so no time can be counted.</source>
        <translation>To środowisko Wayland nie podaje innym programom, które okno jest na wierzchu, więc czasu nie da się zliczać.</translation>
    </message>
    <message>
        <source>There is no window system that tells which window is in front.</source>
        <translation>Brak systemu okien, który podawałby, które okno jest na wierzchu.</translation>
    </message>
    <message>
        <source>Archive Folder</source>
        <translation>Folder archiwum</translation>
    </message>
    <message>
        <source>Export to CSV</source>
        <translation>Eksport do CSV</translation>
    </message>
    <message>
        <source>Ticklog Times</source>
        <translation>Czasy z programu Ticklog</translation>
    </message>
    <message>
        <source>Replacing a file</source>
        <translation>Zastępowanie pliku</translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation>Plik o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Zastąp</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Eksportowanie…</translation>
    </message>
    <message>
        <source>No Label</source>
        <translation>Bez koloru</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Pomarańczowy</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Żółty</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Fioletowy</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Kolor:</translation>
    </message>
    <message>
        <source>Where Ticklog is found</source>
        <translation>Gdzie znaleźć program Ticklog</translation>
    </message>
    <message>
        <source>Hide Dock Icon</source>
        <translation>Nie pokazuj na pasku zadań</translation>
    </message>
    <message>
        <source>Show Dock Icon</source>
        <translation>Pokaż na pasku zadań</translation>
    </message>
    <message>
        <source>Hide Menubar Item</source>
        <translation>Nie pokazuj w tacce systemowej</translation>
    </message>
    <message>
        <source>Show Menubar Item</source>
        <translation>Pokaż w tacce systemowej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>&amp;Import Database…</source>
        <translation>&amp;Importuj bazę danych…</translation>
    </message>
    <message>
        <source>&amp;Save a Copy As…</source>
        <translation>&amp;Zapisz kopię jako…</translation>
    </message>
    <message>
        <source>&amp;Choose Database Location…</source>
        <translation>&amp;Wybierz położenie bazy danych…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Database Location</source>
        <translation>P&amp;rzywróć domyślne położenie bazy danych</translation>
    </message>
    <message>
        <source>Show &amp;Database in File Manager</source>
        <translation>&amp;Pokaż bazę danych w menedżerze plików</translation>
    </message>
    <message>
        <source>E&amp;xport Shown Timers to CSV…</source>
        <translation>&amp;Eksportuj pokazane liczniki do CSV…</translation>
    </message>
    <message>
        <source>Export &amp;All Timers to CSV…</source>
        <translation>Eksportuj wszystkie &amp;liczniki do CSV…</translation>
    </message>
    <message>
        <source>C&amp;lose Window</source>
        <translation>Za&amp;mknij okno</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>P&amp;onów</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Copy &amp;Summary Time</source>
        <translation>Kopiuj &amp;sumę czasu</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Z&amp;mień nazwę</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Zaznacz &amp;wszystko</translation>
    </message>
    <message>
        <source>D&amp;eselect All</source>
        <translation>Odznacz wszys&amp;tko</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Znajdź</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencje…</translation>
    </message>
    <message>
        <source>Edit Ru&amp;les…</source>
        <translation>Edytuj &amp;reguły…</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>&amp;Rozwiń wszystko</translation>
    </message>
    <message>
        <source>&amp;Projects</source>
        <translation>&amp;Projekty</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nowy projekt</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Przesuń w &amp;górę</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Przesuń w &amp;dół</translation>
    </message>
    <message>
        <source>&amp;Freeze All Timers of the Project</source>
        <translation>Za&amp;mroź wszystkie liczniki projektu</translation>
    </message>
    <message>
        <source>D&amp;elete Project…</source>
        <translation>&amp;Usuń projekt…</translation>
    </message>
    <message>
        <source>&amp;Freeze</source>
        <translation>&amp;Zamroź</translation>
    </message>
    <message>
        <source>Clear Timers</source>
        <translation>Wyczyść liczniki</translation>
    </message>
    <message>
        <source>&amp;About Ticklog</source>
        <translation>&amp;O programie Ticklog</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>P&amp;rojekt</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Licznik</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Pasek narzędzi</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Co najmniej</translation>
    </message>
    <message>
        <source>Leaves out timers that have less time than this</source>
        <translation>Pomija liczniki z krótszym czasem</translation>
    </message>
    <message>
        <source>Copies the sum in words</source>
        <translation>Kopiuje sumę z jednostkami zapisanymi słownie</translation>
    </message>
    <message>
        <source>%@ (build %@)</source>
        <translation>%@ (kompilacja %@)</translation>
    </message>
    <message>
        <source>Are you sure you wish to clear the currently visible timers?</source>
        <translation>Czy wyczyścić wszystkie liczniki? Ich czasy i wiersze zostaną usunięte.</translation>
    </message>
    <message>
        <source>Set storage database location.</source>
        <translation>Wybór położenia bazy danych</translation>
    </message>
    <message>
        <source>The database could not be copied.</source>
        <translation>Nie udało się skopiować bazy danych.</translation>
    </message>
    <message>
        <source>No timer matches the search.</source>
        <translation>Żaden licznik nie pasuje do wyszukiwania.</translation>
    </message>
    <message>
        <source>This project is empty. Drag timers from “All Timers” onto it.</source>
        <translation>Ten projekt jest pusty. Przeciągnij na niego liczniki z pozycji „Wszystkie liczniki”.</translation>
    </message>
    <message>
        <source>No timer reaches the minimum time.</source>
        <translation>Żaden licznik nie osiąga minimalnego czasu.</translation>
    </message>
    <message>
        <source>Press Start and carry on working. Your programs will appear here.</source>
        <translation>Naciśnij „Uruchom” i pracuj dalej. Tutaj pojawią się używane programy.</translation>
    </message>
    <message>
        <source>Replacing timers</source>
        <translation>Zastępowanie liczników</translation>
    </message>
    <message>
        <source>Importing timers will replace all current timers. Your current timers will be saved in a backup file next to the Ticklog database.</source>
        <translation>Import zastąpi wszystkie obecne liczniki. Zostaną one zapisane w pliku kopii zapasowej obok bazy danych programu Ticklog.</translation>
    </message>
    <message>
        <source>Import Database</source>
        <translation>Import bazy danych</translation>
    </message>
    <message>
        <source>Save a Copy As</source>
        <translation>Zapisz kopię jako</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>Nie udało się zapisać kopii.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Zaznaczone</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Znalezione</translation>
    </message>
    <message>
        <source>Found in selection</source>
        <translation>Znalezione w zaznaczeniu</translation>
    </message>
    <message>
        <source>total
%@</source>
        <translation>razem
%@</translation>
    </message>
    <message>
        <source>project
%@</source>
        <translation>projekt
%@</translation>
    </message>
    <message>
        <source>selected
%@</source>
        <translation>zaznaczone
%@</translation>
    </message>
    <message>
        <source>found
%@</source>
        <translation>znalezione
%@</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>zamrożony</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Time Spent</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>&amp;Block from the list</source>
        <translation>&amp;Pomijaj w raportach</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Zmień nazwę</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Nowa nazwa:</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Kategorie:</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Reguła</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Press comma or Enter to add; press Delete to remove.</source>
        <translation>Przecinek lub Enter dodaje, Delete usuwa.</translation>
    </message>
    <message>
        <source>&amp;Application:</source>
        <translation>Prog&amp;ram:</translation>
    </message>
    <message>
        <source>&amp;Archive and clear all timers by schedule</source>
        <translation>&amp;Archiwizuj i czyść wszystkie liczniki według harmonogramu</translation>
    </message>
    <message>
        <source>At the chosen time all timers are saved to a file named after the day, and start again from zero.</source>
        <translation>O wybranej godzinie wszystkie liczniki są zapisywane w pliku z datą w nazwie i zaczynają od zera.</translation>
    </message>
    <message>
        <source>Data&amp;base:</source>
        <translation>&amp;Baza danych:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wybierz…</translation>
    </message>
    <message>
        <source>&amp;Restore Default</source>
        <translation>P&amp;rzywróć domyślne</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>&amp;Pokaż w menedżerze plików</translation>
    </message>
    <message>
        <source>CSV table</source>
        <translation>Tabela CSV</translation>
    </message>
    <message>
        <source>Ticklog database</source>
        <translation>Baza danych programu Ticklog</translation>
    </message>
    <message>
        <source>CSV table and Ticklog database</source>
        <translation>Tabela CSV i baza danych programu Ticklog</translation>
    </message>
    <message>
        <source>Weekdays of the archive</source>
        <translation>Dni archiwizacji</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Wyb&amp;ierz…</translation>
    </message>
    <message>
        <source>&amp;Time of day:</source>
        <translation>&amp;Godzina:</translation>
    </message>
    <message>
        <source>&amp;Weekdays:</source>
        <translation>&amp;Dni tygodnia:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>F&amp;older:</translation>
    </message>
    <message>
        <source>No day is chosen: nothing is archived.</source>
        <translation>Nie wybrano dnia: nic nie jest archiwizowane.</translation>
    </message>
    <message>
        <source>Archived on: </source>
        <translation>Archiwizacja: </translation>
    </message>
    <message>
        <source>Task bar and system tray</source>
        <translation>Na pasku zadań i w tacce systemowej</translation>
    </message>
    <message>
        <source>Task bar</source>
        <translation>Na pasku zadań</translation>
    </message>
    <message>
        <source>System tray</source>
        <translation>W tacce systemowej</translation>
    </message>
    <message>
        <source>Include &amp;idle time</source>
        <translation>Uwzględniaj czas &amp;bezczynności</translation>
    </message>
    <message>
        <source>Include time spent in &amp;Ticklog</source>
        <translation>Uwzględniaj czas spędzony w programie &amp;Ticklog</translation>
    </message>
    <message>
        <source>Include &amp;seconds</source>
        <translation>Uwzględniaj &amp;sekundy</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Suma:</translation>
    </message>
    <message>
        <source>Copied times:</source>
        <translation>Kopiowane czasy:</translation>
    </message>
    <message>
        <source>Include idle time in the total</source>
        <translation>Uwzględniaj czas bezczynności w sumie</translation>
    </message>
    <message>
        <source>Include time spent in Ticklog in the total</source>
        <translation>Uwzględniaj w sumie czas spędzony w programie Ticklog</translation>
    </message>
    <message>
        <source>Include seconds in copied times</source>
        <translation>Uwzględniaj sekundy w kopiowanych czasach</translation>
    </message>
    <message>
        <source>Start Ticklog when I &amp;log in</source>
        <translation>Uruchamiaj program Ticklog po za&amp;logowaniu</translation>
    </message>
    <message>
        <source>&amp;Count time without input as idle</source>
        <translation>&amp;Czas bez klawiatury i myszy traktuj jako bezczynność</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Minutes without input until time counts as idle</source>
        <translation>Minuty bez klawiatury i myszy, po których czas liczy się jako bezczynność</translation>
    </message>
    <message>
        <source>Idle time:</source>
        <translation>Bezczynność:</translation>
    </message>
    <message>
        <source>&amp;After:</source>
        <translation>&amp;Po:</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message>
        <source>D&amp;uplicate…</source>
        <translation>&amp;Powiel…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Usuń…</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reguły</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Dodaj…</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktywna</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiwum</translation>
    </message>
    <message>
        <source>Delete the rule?</source>
        <translation>Usunąć regułę?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Zachowaj</translation>
    </message>
    <message>
        <source>Category. Press Delete to remove it.</source>
        <translation>Kategoria. Delete ją usuwa.</translation>
    </message>
    <message>
        <source>For Ticklog to function you must grant it access to your computer.</source>
        <translation>Program Ticklog potrzebuje usług dostępności środowiska.</translation>
    </message>
    <message>
        <source>Follow these simple steps and Ticklog will be running in no time.</source>
        <translation>Wykonaj te kroki, a program Ticklog zacznie liczyć.</translation>
    </message>
    <message>
        <source>Launch the Security &amp; Privacy panel in the System Preferences.</source>
        <translation>Otwórz ustawienia środowiska.</translation>
    </message>
    <message>
        <source>Select the Privacy tab and unlock the padlock to allow settings changes.</source>
        <translation>Przejdź do strony ułatwień dostępu.</translation>
    </message>
    <message>
        <source>Select the Accessibility group and drag Ticklog into the list on the right.</source>
        <translation>Włącz usługi dla programów wspomagających.</translation>
    </message>
    <message>
        <source>Finally tick the checkbox associated with Ticklog and restart Ticklog.</source>
        <translation>Uruchom program Ticklog ponownie.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Uruchom ponownie</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Bieżący krok</translation>
    </message>
    <message>
        <source>Ticklog monitors the active time spent in each application. To enable this tracking you must give Ticklog permission to gather this data from the system.</source>
        <translation>Program Ticklog liczy czas spędzany w każdym programie. Potrzebuje do tego pozwolenia na odpytywanie środowiska.</translation>
    </message>
    <message>
        <source>Security protections built into OS X prevent monitoring the status of other applications without user authorization. In order to protect your privacy, this action will authorize Ticklog to track your applications while maintaining the normal system wide security precautions.</source>
        <translation>Środowisko chroni prywatność: bez pozwolenia żaden program nie może obserwować innych. Ta czynność daje pozwolenie programowi Ticklog; wszystkie inne zabezpieczenia pozostają w mocy.</translation>
    </message>
    <message>
        <source>Authorize Ticklog</source>
        <translation>Zezwól programowi Ticklog</translation>
    </message>
    <message>
        <source>Cancel Start</source>
        <translation>Anuluj uruchomienie</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Secuirty &gt; Privacy &gt; Accessibility system preferences.</source>
        <translation>Włącz usługi dostępności w ustawieniach środowiska.</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Universal Access system preferences.</source>
        <translation>Włącz usługi dostępności w ustawieniach środowiska.</translation>
    </message>
    <message>
        <source>An error was encountered.</source>
        <translation>Wystąpił błąd.</translation>
    </message>
    <message>
        <source>Open Preference Panel</source>
        <translation>Otwórz ustawienia</translation>
    </message>
    <message>
        <source>Ticklog is counting</source>
        <translation>Program Ticklog liczy czas</translation>
    </message>
    <message>
        <source>Ticklog is paused</source>
        <translation>Program Ticklog jest wstrzymany</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Wolne oprogramowanie na licencji MIT.</translation>
    </message>
    <message>
        <source>There is no system tray.</source>
        <translation>Brak tacki systemowej.</translation>
    </message>
    <message>
        <source>Ticklog therefore stays in the task bar, and its menu is in the main window. It moves to the tray as soon as there is one.</source>
        <translation>Program Ticklog pozostaje więc na pasku zadań, a jego menu jest w oknie głównym. Przeniesie się do tacki, gdy tylko się pojawi.</translation>
    </message>
    <message>
        <source>Ticklog databases</source>
        <translation>Bazy danych programu Ticklog</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>Pliki CSV</translation>
    </message>
    <message>
        <source>Application Times</source>
        <translation>Czasy programów</translation>
    </message>
    <message>
        <source>Show Time Window</source>
        <translation>Pokaż program Ticklog</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencje…</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>O programie Ticklog</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>About Ticklog</source>
        <translation>O programie Ticklog</translation>
    </message>
    <message>
        <source>Delete Project</source>
        <translation>Usuń projekt</translation>
    </message>
    <message>
        <source>Add to Project</source>
        <translation>Dodaj do projektu</translation>
    </message>
    <message>
        <source>Rename Project</source>
        <translation>Zmień nazwę projektu</translation>
    </message>
    <message>
        <source>The timer set &quot;%@&quot; will be deleted.</source>
        <translation>Projekt „%@” zostanie usunięty.</translation>
    </message>
    <message>
        <source>Delete selected timer set?</source>
        <translation>Usunąć zaznaczony projekt?</translation>
    </message>
    <message>
        <source>Move Project</source>
        <translation>Przenieś projekt</translation>
    </message>
    <message>
        <source>Remove from Project</source>
        <translation>Usuń z projektu</translation>
    </message>
    <message>
        <source>Label Project</source>
        <translation>Zmień kolor projektu</translation>
    </message>
    <message>
        <source>Copy Project</source>
        <translation>Kopiuj projekt</translation>
    </message>
    <message>
        <source>Ticklog cannot see other programs’ windows</source>
        <translation>Program Ticklog nie widzi okien innych programów</translation>
    </message>
    <message>
        <source>To count the time spent in each window, it needs the accessibility services of the desktop. Start the timer again when they are turned on.</source>
        <translation>Aby liczyć czas w każdym oknie, potrzebne są usługi dostępności środowiska. Po ich włączeniu uruchom licznik ponownie.</translation>
    </message>
    <message>
        <source>Turn On</source>
        <translation>Włącz</translation>
    </message>
    <message>
        <source>Delete &amp;Without Asking</source>
        <translation>Usuń &amp;bez pytania</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Zw&amp;iń wszystko</translation>
    </message>
    <message>
        <source>&amp;Rename Project</source>
        <translation>&amp;Zmień nazwę projektu</translation>
    </message>
    <message>
        <source>Sho&amp;w Ticklog in:</source>
        <translation>Po&amp;kazuj program Ticklog:</translation>
    </message>
    <message>
        <source>Ticklog cannot be started at login.</source>
        <translation>Nie można uruchamiać programu Ticklog po zalogowaniu.</translation>
    </message>
    <message>
        <source>Ticklog is still started at login.</source>
        <translation>Program Ticklog nadal uruchamia się po zalogowaniu.</translation>
    </message>
    <message>
        <source>Plasma tells only installed programs which window is in front. Install Ticklog, and start it from the menu.</source>
        <translation>Plasma podaje tylko zainstalowanym programom, które okno jest na wierzchu. Zainstaluj program Ticklog i uruchom go z menu.</translation>
    </message>
    <message>
        <source>This Wayland desktop no longer tells other programs which window is in front.</source>
        <translation>To środowisko Wayland nie podaje już innym programom, które okno jest na wierzchu.</translation>
    </message>
    <message>
        <source>GNOME Shell tells which window is in front only to its extensions, and the one that belongs to Ticklog is not running.</source>
        <translation>Powłoka GNOME podaje tylko swoim rozszerzeniom, które okno jest na wierzchu, a rozszerzenie programu Ticklog nie działa.</translation>
    </message>
    <message>
        <source>GNOME Shell tells this only to its extensions. The one that comes with Ticklog tells Ticklog, and no other program, which windows are on the screen. Without it Ticklog sees only some programs.</source>
        <translation>Powłoka GNOME podaje to tylko swoim rozszerzeniom. Rozszerzenie dołączone do programu Ticklog przekazuje jemu, i żadnemu innemu programowi, jakie okna są na ekranie. Bez niego program Ticklog widzi tylko niektóre programy.</translation>
    </message>
    <message>
        <source>Ticklog needs an extension of GNOME Shell to see which window is in front.</source>
        <translation>Program Ticklog potrzebuje rozszerzenia powłoki GNOME, aby widzieć, które okno jest na wierzchu.</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>Don&apos;t Ask Again</source>
        <translation>Nie pytaj ponownie</translation>
    </message>
    <message>
        <source>GNOME Shell finds new extensions at login: log out and in again once it is installed.</source>
        <translation>Powłoka GNOME wykrywa nowe rozszerzenia przy logowaniu: po instalacji wyloguj się i zaloguj ponownie.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>The extension could not be installed.</source>
        <translation>Nie udało się zainstalować rozszerzenia.</translation>
    </message>
    <message>
        <source>Until then, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Do tego czasu program Ticklog widzi tylko programy, które informują programy wspomagające o swoich oknach; cały pozostały czas liczy się jako „Pulpit”.</translation>
    </message>
    <message>
        <source>GNOME Shell’s switch for all extensions is off. It is turned on as well, and with it the other extensions that are chosen there.</source>
        <translation>W powłoce GNOME przełącznik wszystkich rozszerzeń jest wyłączony. On także zostanie włączony, a wraz z nim inne wybrane tam rozszerzenia.</translation>
    </message>
    <message>
        <source>GNOME Shell has not turned the extension on.</source>
        <translation>Powłoka GNOME nie włączyła rozszerzenia.</translation>
    </message>
    <message>
        <source>Turn it on in the program “Extensions”, together with the switch for all extensions. If you cannot, the administrator of this computer does not allow it.</source>
        <translation>Włącz je w programie „Rozszerzenia” razem z przełącznikiem wszystkich rozszerzeń. Jeśli to niemożliwe, nie pozwala na to administrator tego komputera.</translation>
    </message>
    <message>
        <source>Set Up...</source>
        <translation>Skonfiguruj…</translation>
    </message>
    <message>
        <source>Why Are Windows Not Counted?</source>
        <translation>Dlaczego okna nie są liczone?</translation>
    </message>
    <message>
        <source>GNOME Shell does not tell programs in a sandbox which window is in front. Installed outside of one, Ticklog can be told.</source>
        <translation>Powłoka GNOME nie mówi programom w piaskownicy, które okno jest na wierzchu. Program Ticklog zainstalowany poza nią może się tego dowiedzieć.</translation>
    </message>
    <message>
        <source>Ticklog runs in a sandbox and cannot change what starts with your session. The desktop’s settings can.</source>
        <translation>Program Ticklog działa w piaskownicy i nie może zmienić tego, co uruchamia sesja. Można to zrobić w ustawieniach środowiska.</translation>
    </message>
    <message>
        <source>The desktop has stopped responding. Until it responds, no window’s time is counted.</source>
        <translation>Środowisko przestało odpowiadać. Dopóki nie odpowie, czas żadnego okna nie jest liczony.</translation>
    </message>
    <message>
        <source>Ticklog’s extension does not support GNOME Shell %@ yet.</source>
        <translation>Rozszerzenie programu Ticklog nie obsługuje jeszcze powłoki GNOME %@.</translation>
    </message>
    <message>
        <source>Ticklog was started without knowing of the Wayland desktop, so it sees only programs that run through the X server. Start Ticklog from the desktop’s menu.</source>
        <translation>Program Ticklog uruchomiono bez wiedzy o środowisku Wayland, więc widzi tylko programy działające przez serwer X. Uruchom program Ticklog z menu środowiska.</translation>
    </message>
    <message>
        <source>Until it runs, no window’s time is counted.</source>
        <translation>Dopóki nie będzie działać, czas żadnego okna nie jest liczony.</translation>
    </message>
    <message>
        <source>Until it runs, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Dopóki nie będzie działać, program Ticklog widzi tylko programy, które informują programy wspomagające o swoich oknach; cały pozostały czas liczy się jako „Pulpit”.</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Zamroź</translation>
    </message>
    <message>
        <source>“%@” is in a folder where others may write: they could replace it.</source>
        <translation>„%@” leży w folderze, w którym inni mogą zapisywać, a więc mogą podmienić ten plik.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is missing.</source>
        <translation>Nie można zapisać „%@”: brak folderu.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is read-only.</source>
        <translation>Nie można zapisać „%@”: folder jest tylko do odczytu.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: the disk is full.</source>
        <translation>Nie można zapisać „%@”: dysk jest pełny.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved.</source>
        <translation>Nie można zapisać „%@”.</translation>
    </message>
    <message>
        <source>“%@” could not be read. It was set aside, and Ticklog has started without it.</source>
        <translation>Nie udało się odczytać „%@”. Plik odłożono na bok, a program Ticklog zaczął bez niego.</translation>
    </message>
    <message>
        <source>Some entries of “%@” are damaged and were left out. The damaged file is kept beside it.</source>
        <translation>Niektóre wpisy w „%@” są uszkodzone i zostały pominięte. Uszkodzony plik zachowano obok.</translation>
    </message>
    <message>
        <source>“%@” could not be read. Ticklog continues with the last settings that it kept.</source>
        <translation>Nie udało się odczytać „%@”. Program Ticklog korzysta z ostatnich zachowanych ustawień.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be moved to its folder. It lies beside the database.</source>
        <translation>Archiwum „%@” nie udało się przenieść do jego folderu. Leży obok bazy danych.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be written anywhere.</source>
        <translation>Archiwum „%@” nie udało się nigdzie zapisać.</translation>
    </message>
    <message>
        <source>The database “%@” is missing. What is counted until it is back will be added to it.</source>
        <translation>Brakuje bazy danych „%@”. Czas zliczony do jej powrotu zostanie do niej dodany.</translation>
    </message>
    <message>
        <source>No backup could be made, so nothing was changed.</source>
        <translation>Nie udało się utworzyć kopii zapasowej, więc niczego nie zmieniono.</translation>
    </message>
    <message>
        <source>The timers could not be imported.</source>
        <translation>Nie udało się zaimportować liczników.</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>Export &amp;Project…</source>
        <translation>Eksportuj pro&amp;jekt…</translation>
    </message>
    <message>
        <source>No timer that matches the search reaches the minimum time.</source>
        <translation>Żaden licznik pasujący do wyszukiwania nie osiąga minimalnego czasu.</translation>
    </message>
    <message>
        <source>Export All Timers to CSV, Narrowed by the Search</source>
        <translation>Eksport wszystkich liczników do CSV, zawężonych wyszukiwaniem</translation>
    </message>
    <message>
        <source>Export All Timers to CSV</source>
        <translation>Eksport wszystkich liczników do CSV</translation>
    </message>
    <message>
        <source>Export Project to CSV</source>
        <translation>Eksport projektu do CSV</translation>
    </message>
    <message>
        <source>Ticklog keeps running in the task bar.</source>
        <translation>Program Ticklog działa dalej na pasku zadań.</translation>
    </message>
    <message>
        <source>There is no tray icon that could bring a closed window back, so closing the window minimizes it and Ticklog keeps running. “Quit” ends Ticklog.</source>
        <translation>Żadna ikona w tacce systemowej nie prowadzi z powrotem do zamkniętego okna. Dlatego zamknięcie je minimalizuje, a program Ticklog działa dalej. „Zakończ” kończy pracę.</translation>
    </message>
    <message>
        <source>There are more timers than one database can hold: %@ at the most.</source>
        <translation>Liczników jest więcej, niż mieści baza danych: najwyżej %@.</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importowanie…</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front. Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>To środowisko Wayland nie podaje innym programom, które okno jest na wierzchu. Widoczne są tylko programy, które informują programy wspomagające o swoich oknach; cały pozostały czas liczy się jako „Pulpit”.</translation>
    </message>
    <message>
        <source>“%@” was written by a newer version. It is left alone, and nothing is added to it.</source>
        <translation>Plik „%@” zapisała nowsza wersja. Pozostaje bez zmian i nic nie jest do niego dodawane.</translation>
    </message>
    <message>
        <source>No history is kept.</source>
        <translation>Historia nie jest prowadzona.</translation>
    </message>
    <message>
        <source>until</source>
        <translation>do</translation>
    </message>
    <message>
        <source>&amp;Forget…</source>
        <translation>&amp;Zapomnij…</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Zapomnij</translation>
    </message>
    <message>
        <source>Any title</source>
        <translation>Dowolny tytuł</translation>
    </message>
    <message>
        <source>At any time</source>
        <translation>W dowolnym czasie</translation>
    </message>
    <message>
        <source>On the day</source>
        <translation>W dniu</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Program:</translation>
    </message>
    <message>
        <source>&amp;Title contains:</source>
        <translation>&amp;Tytuł zawiera:</translation>
    </message>
    <message>
        <source>&amp;When:</source>
        <translation>&amp;Kiedy:</translation>
    </message>
    <message>
        <source>The history forgets it for good. Timers keep their names and times; to remove those, delete their rows.</source>
        <translation>Historia zapomni to na zawsze. Liczniki zachowają nazwy i czasy; aby się ich pozbyć, usuń ich wiersze.</translation>
    </message>
    <message>
        <source>What would be forgotten</source>
        <translation>Co zostałoby zapomniane</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Wszystkie programy</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>Nie można odczytać historii.</translation>
    </message>
    <message>
        <source>Forget this for good?</source>
        <translation>Zapomnieć to na zawsze?</translation>
    </message>
    <message>
        <source>It is removed from the file at once. This cannot be undone.</source>
        <translation>Zostanie to od razu usunięte z pliku. Tego nie można cofnąć.</translation>
    </message>
    <message>
        <source>It is being forgotten…</source>
        <translation>Trwa zapominanie…</translation>
    </message>
    <message>
        <source>It is forgotten.</source>
        <translation>Zapomniano.</translation>
    </message>
    <message>
        <source>It is not forgotten yet, because the history cannot be saved at the moment. Ticklog keeps trying.</source>
        <translation>Jeszcze nie zapomniano, bo historii nie można teraz zapisać. Program Ticklog próbuje dalej.</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Na zawsze</translation>
    </message>
    <message>
        <source>For five years</source>
        <translation>Przez pięć lat</translation>
    </message>
    <message>
        <source>For a year</source>
        <translation>Przez rok</translation>
    </message>
    <message>
        <source>For 90 days</source>
        <translation>Przez 90 dni</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Wcale</translation>
    </message>
    <message>
        <source>The history records which title was in front, and when. It stays on this machine, in a file that only you can read, and lets the timers lose no more than 15 seconds in a crash.</source>
        <translation>Historia zapisuje, kiedy który tytuł był na wierzchu. Pozostaje na tym komputerze, w pliku, który tylko Ty możesz odczytać; dzięki niej w razie awarii liczniki tracą najwyżej 15 sekund.</translation>
    </message>
    <message>
        <source>&amp;Keep the history:</source>
        <translation>Zac&amp;howuj historię:</translation>
    </message>
    <message>
        <source>A &amp;day begins at:</source>
        <translation>&amp;Dzień zaczyna się o:</translation>
    </message>
    <message>
        <source>For %@ days</source>
        <translation>Dni: %@</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nic nie znaleziono.</translation>
    </message>
    <message>
        <source>Titles: %@</source>
        <translation>Tytuły: %@</translation>
    </message>
    <message>
        <source>Time spent: %@</source>
        <translation>Czas: %@</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Stop keeping a history?</source>
        <translation>Przestać prowadzić historię?</translation>
    </message>
    <message>
        <source>Forget what is older?</source>
        <translation>Zapomnieć to, co starsze?</translation>
    </message>
    <message>
        <source>Its file is removed at once. This cannot be undone. Timers keep their times, but a crash may cost them the last 15 minutes.</source>
        <translation>Jej plik zostanie od razu usunięty. Tego nie można cofnąć. Liczniki zachowują czasy, ale awaria może kosztować je ostatnie 15 minut.</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Tytuły</translation>
    </message>
    <message>
        <source>Rule for Titles</source>
        <translation>Reguła dla tytułów</translation>
    </message>
    <message>
        <source>How the title is found</source>
        <translation>Jak znajdowany jest tytuł</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>zawiera</translation>
    </message>
    <message>
        <source>matches the expression</source>
        <translation>pasuje do wyrażenia</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Dowolny</translation>
    </message>
    <message>
        <source>&amp;Program contains:</source>
        <translation>&amp;Program zawiera:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Tytuł:</translation>
    </message>
    <message>
        <source>&amp;Effect:</source>
        <translation>&amp;Działanie:</translation>
    </message>
    <message>
        <source>&amp;New text:</source>
        <translation>&amp;Nowy tekst:</translation>
    </message>
    <message>
        <source>This expression cannot be read: %@</source>
        <translation>Nie można odczytać tego wyrażenia: %@</translation>
    </message>
    <message>
        <source>This expression is wrong: %@</source>
        <translation>Błędne wyrażenie: %@</translation>
    </message>
    <message>
        <source>Private windows of browsers</source>
        <translation>Prywatne okna przeglądarek</translation>
    </message>
    <message>
        <source>Keep the title</source>
        <translation>Zachowaj tytuł</translation>
    </message>
    <message>
        <source>Replace the title</source>
        <translation>Zastąp tytuł</translation>
    </message>
    <message>
        <source>Count as “Private”</source>
        <translation>Licz jako „Prywatne”</translation>
    </message>
    <message>
        <source>Leave the title out</source>
        <translation>Pomiń tytuł</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Działanie</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Ostatnie 7 dni</translation>
    </message>
    <message>
        <source>Rules for titles</source>
        <translation>Reguły dla tytułów</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>W &amp;górę</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>&amp;W dół</translation>
    </message>
    <message>
        <source>&amp;Matching Titles…</source>
        <translation>Pasujące &amp;tytuły…</translation>
    </message>
    <message>
        <source>Apply to the &amp;Past…</source>
        <translation>Zastosuj do &amp;przeszłości…</translation>
    </message>
    <message>
        <source>What these rules hide is never written. The first rule that matches decides.</source>
        <translation>To, co ukrywają te reguły, nigdy nie jest zapisywane. Decyduje pierwsza pasująca.</translation>
    </message>
    <message>
        <source>Titles of the Last 7 Days</source>
        <translation>Tytuły z ostatnich 7 dni</translation>
    </message>
    <message>
        <source>The rules match nothing in the past.</source>
        <translation>Reguły nie obejmują niczego z przeszłości.</translation>
    </message>
    <message>
        <source>Timers: %@</source>
        <translation>Liczniki: %@</translation>
    </message>
    <message>
        <source>Apply the rules to the past?</source>
        <translation>Zastosować reguły do przeszłości?</translation>
    </message>
    <message>
        <source>What they hide is removed for good from the history, the timers and the projects. Neither this nor any earlier step can be undone. Archives and backups stay as they are.</source>
        <translation>To, co ukrywają, zostanie na zawsze usunięte z historii, liczników i projektów. Nie można cofnąć ani tego, ani wcześniejszych zmian. Archiwa i kopie zapasowe pozostają bez zmian.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Pa&amp;tterns…</source>
        <translation>&amp;Wzorce…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Wzorce</translation>
    </message>
    <message>
        <source>Program contains</source>
        <translation>Program zawiera</translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation>Tytuł zawiera</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Wyrażenie</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>Whatever matches belongs to the project in the history and in reports, past time included. The project’s own timers stay as they are.</source>
        <translation>To, co pasuje, należy do projektu w historii i w raportach, także w przeszłości. Liczniki projektu pozostają bez zmian.</translation>
    </message>
    <message>
        <source>The title is a regular expression</source>
        <translation>Tytuł jest wyrażeniem regularnym</translation>
    </message>
    <message>
        <source>Change Patterns</source>
        <translation>Zmień wzorce</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Naprzód</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>Dz&amp;iś</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Dzień</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Tydzień</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Miesiąc</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Rok</translation>
    </message>
    <message>
        <source>F&amp;rom – To…</source>
        <translation>&amp;Od – do…</translation>
    </message>
    <message>
        <source>By &amp;Program</source>
        <translation>Według &amp;programu</translation>
    </message>
    <message>
        <source>By Pro&amp;ject</source>
        <translation>Według pro&amp;jektu</translation>
    </message>
    <message>
        <source>Nothing here reaches the minimum time.</source>
        <translation>Nic tutaj nie osiąga minimalnego czasu.</translation>
    </message>
    <message>
        <source>Nothing in this time matches the search.</source>
        <translation>W tym czasie nic nie pasuje do wyszukiwania.</translation>
    </message>
    <message>
        <source>No work for this project in this time.</source>
        <translation>W tym czasie nie pracowano nad tym projektem.</translation>
    </message>
    <message>
        <source>This time is still to come.</source>
        <translation>Ten czas dopiero nadejdzie.</translation>
    </message>
    <message>
        <source>No work was recorded in this time.</source>
        <translation>W tym czasie nie zapisano żadnej pracy.</translation>
    </message>
    <message>
        <source>Ticklog History</source>
        <translation>Historia z programu Ticklog</translation>
    </message>
    <message>
        <source>The history could not be exported.</source>
        <translation>Nie udało się wyeksportować historii.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Udział</translation>
    </message>
    <message>
        <source>Opens a calendar</source>
        <translation>Otwiera kalendarz</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>&amp;Timers</source>
        <translation>&amp;Liczniki</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historia</translation>
    </message>
    <message>
        <source>H&amp;istory</source>
        <translation>&amp;Historia</translation>
    </message>
    <message>
        <source>The day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programy</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bezczynność</translation>
    </message>
    <message>
        <source>Project %@</source>
        <translation>Projekt %@</translation>
    </message>
    <message>
        <source>%@ more</source>
        <translation>jeszcze %@</translation>
    </message>
    <message>
        <source>The period</source>
        <translation>Okres</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Średnia</translation>
    </message>
    <message>
        <source>Week of %@</source>
        <translation>Tydzień od %@</translation>
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
        <translation>%1 do %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Time &amp;Sheet…</source>
        <translation>&amp;Karta czasu…</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>Bez projektu</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Time Sheet</source>
        <translation>Karta czasu</translation>
    </message>
    <message>
        <source>Measured: %@</source>
        <translation>Zmierzono: %@</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Zaokrąglanie</translation>
    </message>
    <message>
        <source>No Rounding</source>
        <translation>Bez zaokrąglania</translation>
    </message>
    <message>
        <source>6 Minutes</source>
        <translation>6 minut</translation>
    </message>
    <message>
        <source>15 Minutes</source>
        <translation>15 minut</translation>
    </message>
    <message>
        <source>30 Minutes</source>
        <translation>30 minut</translation>
    </message>
    <message>
        <source>Direction of rounding</source>
        <translation>Kierunek zaokrąglania</translation>
    </message>
    <message>
        <source>To the Nearest</source>
        <translation>Do najbliższej</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>What is rounded</source>
        <translation>Co się zaokrągla</translation>
    </message>
    <message>
        <source>Each Cell</source>
        <translation>Każda komórka</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Każdy dzień</translation>
    </message>
    <message>
        <source>Form of times</source>
        <translation>Zapis czasu</translation>
    </message>
    <message>
        <source>Hours and Minutes</source>
        <translation>Godziny i minuty</translation>
    </message>
    <message>
        <source>Decimal Hours</source>
        <translation>Godziny dziesiętne</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notatki</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notatki:</translation>
    </message>
    <message>
        <source>Save as C&amp;SV…</source>
        <translation>Zapisz jako C&amp;SV…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Zapisz jako &amp;PDF…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drukuj…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Save the Time Sheet as CSV</source>
        <translation>Zapisz kartę czasu jako CSV</translation>
    </message>
    <message>
        <source>The time sheet could not be saved.</source>
        <translation>Nie udało się zapisać karty czasu.</translation>
    </message>
    <message>
        <source>Save the Time Sheet as PDF</source>
        <translation>Zapisz kartę czasu jako PDF</translation>
    </message>
    <message>
        <source>Today: %@</source>
        <translation>Dziś: %@</translation>
    </message>
    <message>
        <source>Pause For</source>
        <translation>Wstrzymaj na</translation>
    </message>
    <message>
        <source>An Hour</source>
        <translation>Godzinę</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>Do jutra</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Podręcznik</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Podręcznik</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Rozdziały</translation>
    </message>
    <message>
        <source>&amp;Give to Project</source>
        <translation>Prz&amp;ypisz do projektu</translation>
    </message>
    <message>
        <source>&amp;Name This Time…</source>
        <translation>Nazwij ten &amp;czas…</translation>
    </message>
    <message>
        <source>Boo&amp;k Time…</source>
        <translation>Do&amp;licz czas…</translation>
    </message>
    <message>
        <source>Forg&amp;et This Time…</source>
        <translation>&amp;Zapomnij ten czas…</translation>
    </message>
    <message>
        <source>Booked by hand on %1</source>
        <translation>Doliczono ręcznie %1</translation>
    </message>
    <message>
        <source>Given to its project by hand on %1</source>
        <translation>Przypisano do projektu ręcznie %1</translation>
    </message>
    <message>
        <source>Named by hand on %1, before: %2</source>
        <translation>Nazwano ręcznie %1, wcześniej: %2</translation>
    </message>
    <message>
        <source>By Hand</source>
        <translation>Ręcznie</translation>
    </message>
    <message>
        <source>&amp;No Project</source>
        <translation>&amp;Bez projektu</translation>
    </message>
    <message>
        <source>Give to Project</source>
        <translation>Przypisz do projektu</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Dolicz</translation>
    </message>
    <message>
        <source>Boo&amp;k</source>
        <translation>&amp;Dolicz</translation>
    </message>
    <message>
        <source>Book Time</source>
        <translation>Dolicz czas</translation>
    </message>
    <message>
        <source>&amp;Begin:</source>
        <translation>&amp;Początek:</translation>
    </message>
    <message>
        <source>&amp;End:</source>
        <translation>&amp;Koniec:</translation>
    </message>
    <message>
        <source>&amp;What was it?</source>
        <translation>&amp;Co to było?</translation>
    </message>
    <message>
        <source>&amp;Project:</source>
        <translation>P&amp;rojekt:</translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation>Koniec jest przed początkiem.</translation>
    </message>
    <message>
        <source>No time is free there: you worked then, or it is still to come.</source>
        <translation>Nie ma tam wolnego czasu: pracowano wtedy albo ten czas jeszcze nie nadszedł.</translation>
    </message>
    <message>
        <source>%1 of it is free. Time that you worked stays as it is.</source>
        <translation>Wolne jest tam %1. Przepracowany czas pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>Named by hand</source>
        <translation>Nazwano ręcznie</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nazwij</translation>
    </message>
    <message>
        <source>Name This Time</source>
        <translation>Nazwij ten czas</translation>
    </message>
    <message>
        <source>The time stays with its programs. The history notes what was changed by hand.</source>
        <translation>Czas zostaje przy swoich programach. Historia zapisuje, co zmieniono ręcznie.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Powięk&amp;sz</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Pomni&amp;ejsz</translation>
    </message>
    <message>
        <source>Reset &amp;Zoom</source>
        <translation>Przywróć sk&amp;alę</translation>
    </message>
    <message>
        <source>Start the timer to record where your time goes, and when.</source>
        <translation>Uruchom licznik, aby zapisywać, na co i kiedy idzie Twój czas.</translation>
    </message>
    <message>
        <source>Add to &amp;Project</source>
        <translation>Dodaj do &amp;projektu</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nowy projekt…</translation>
    </message>
    <message>
        <source>Absences</source>
        <translation>Nieobecności</translation>
    </message>
    <message>
        <source>Do not ask about these absences</source>
        <translation>Nie pytaj o te nieobecności</translation>
    </message>
    <message>
        <source>What the absence was</source>
        <translation>Czym była nieobecność</translation>
    </message>
    <message>
        <source>Project of the absence</source>
        <translation>Projekt nieobecności</translation>
    </message>
    <message>
        <source>Book the absence as work</source>
        <translation>Dolicz nieobecność jako pracę</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Przerwa</translation>
    </message>
    <message>
        <source>The absence was not work</source>
        <translation>Nieobecność nie była pracą</translation>
    </message>
    <message>
        <source>&amp;What did you do?</source>
        <translation>Co ro&amp;biono?</translation>
    </message>
    <message>
        <source>You were away: %@</source>
        <translation>Nieobecność: %@</translation>
    </message>
    <message>
        <source>Book the Absence</source>
        <translation>Dolicz nieobecność</translation>
    </message>
    <message>
        <source>You were away for %@</source>
        <translation>Nieobecność: %@</translation>
    </message>
    <message>
        <source>%@. What was it?</source>
        <translation>%@. Co to było?</translation>
    </message>
    <message>
        <source>Say…</source>
        <translation>Podaj…</translation>
    </message>
    <message>
        <source>%@ – %@ (%@)</source>
        <translation>%@ – %@ (%@)</translation>
    </message>
    <message>
        <source>&amp;Ask what an absence was</source>
        <translation>P&amp;ytaj, czym była nieobecność</translation>
    </message>
    <message>
        <source>When you come back, a notice and a bar in the window ask what you did. Your answer is booked by hand; without one, the time stays idle.</source>
        <translation>Po powrocie powiadomienie i pasek w oknie pytają, co robiono. Odpowiedź jest doliczana jak wpis ręczny; bez niej czas pozostaje bezczynnością.</translation>
    </message>
    <message>
        <source>&amp;Shortest absence:</source>
        <translation>&amp;Najkrótsza nieobecność:</translation>
    </message>
    <message>
        <source>The times could not be exported.</source>
        <translation>Nie udało się wyeksportować czasów.</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identyfikator</translation>
    </message>
    <message>
        <source>Export Shown &amp;Timers for Spreadsheets…</source>
        <translation>Ek&amp;sportuj pokazane liczniki do arkusza…</translation>
    </message>
    <message>
        <source>Copy for Spreadshee&amp;t</source>
        <translation>Kopiuj &amp;do arkusza</translation>
    </message>
    <message>
        <source>A project shows all its timers, however little time they have</source>
        <translation>Projekt pokazuje wszystkie swoje liczniki, nawet te z krótkim czasem</translation>
    </message>
    <message>
        <source>It is removed from the file at once. It can be undone until Ticklog ends.</source>
        <translation>Zostanie to od razu usunięte z pliku. Można to cofnąć, dopóki działa program Ticklog.</translation>
    </message>
    <message>
        <source>Forget this?</source>
        <translation>Zapomnieć to?</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Odczytywanie…</translation>
    </message>
    <message>
        <source>The history cannot be read at the moment.</source>
        <translation>Historii nie można teraz odczytać.</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of their rows.</source>
        <translation>Czas należący do kilku projektów jest w wierszu każdego z nich.</translation>
    </message>
    <message>
        <source>Total without %@</source>
        <translation>Razem bez: %@</translation>
    </message>
    <message>
        <source>Total without %@ and %@</source>
        <translation>Razem bez: %@ i %@</translation>
    </message>
    <message>
        <source>No history is kept. You can turn it on in the preferences, under History.</source>
        <translation>Historia nie jest prowadzona. Można ją włączyć w preferencjach, na karcie Historia.</translation>
    </message>
    <message>
        <source>Delete selected times</source>
        <translation>Usunąć zaznaczone wiersze?</translation>
    </message>
    <message>
        <source>Are you sure you wish permanently delete the selected timing rows?</source>
        <translation>Ich czasy zostaną usunięte razem z nimi. „Cofnij” je przywraca.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Pulpit</translation>
    </message>
    <message>
        <source>Private</source>
        <translation>Prywatne</translation>
    </message>
    <message>
        <source>Timer still running.</source>
        <translation>Licznik jeszcze działa.</translation>
    </message>
    <message>
        <source>There is a timer currently running. Ticklog must remain open in order to keep track of time. Are you sure you wish to quit?</source>
        <translation>Program Ticklog musi pozostać otwarty, aby liczyć czas. Czy zakończyć?</translation>
    </message>
    <message>
        <source>Remain Open</source>
        <translation>Pozostaw otwarty</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Okres</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>Długość okresu</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Grupowanie</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
    <message>
        <source>While its timer runs, Ticklog notes which program and which of its windows, by its title, is in front, and for how long.</source>
        <translation>Gdy licznik działa, program Ticklog zapisuje, który program i które z jego okien (według tytułu) jest na wierzchu i jak długo.</translation>
    </message>
    <message>
        <source>It notes no keys, no pictures and nothing of what is in a window; time without input goes to Idle.</source>
        <translation>Nie zapisuje naciskanych klawiszy, obrazów ani zawartości okien; czas bez klawiatury i myszy liczy się jako „Bezczynność”.</translation>
    </message>
    <message>
        <source>The record stays on this computer, in files that only you can read, and is sent nowhere.</source>
        <translation>Zapis pozostaje na tym komputerze, w plikach, które tylko Ty możesz odczytać, i nigdzie nie jest wysyłany.</translation>
    </message>
    <message>
        <source>You can hide titles by rules, and delete or forget whatever was recorded, at any time.</source>
        <translation>W każdej chwili możesz ukrywać tytuły za pomocą reguł oraz usuwać lub zapominać to, co zapisano.</translation>
    </message>
    <message>
        <source>Start Ticklog when I log in</source>
        <translation>Uruchamiaj program Ticklog po zalogowaniu</translation>
    </message>
    <message>
        <source>Start the Timer</source>
        <translation>Uruchom licznik</translation>
    </message>
    <message>
        <source>Welcome to Ticklog</source>
        <translation>Witamy w programie Ticklog</translation>
    </message>
    <message>
        <source>Hide Titles…</source>
        <translation>Ukryj tytuły…</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>Jeszcze nie</translation>
    </message>
    <message>
        <source>Icons of &amp;programs</source>
        <translation>Ikony p&amp;rogramów</translation>
    </message>
    <message>
        <source>A &amp;bar behind each time</source>
        <translation>Pasek za każdym czase&amp;m</translation>
    </message>
    <message>
        <source>Titles without their program’s &amp;name</source>
        <translation>Tytuły bez &amp;nazwy ich programu</translation>
    </message>
    <message>
        <source>Times of pro&amp;jects in the sidebar</source>
        <translation>Czasy pro&amp;jektów na pasku bocznym</translation>
    </message>
    <message>
        <source>Timers and projects show:</source>
        <translation>Na listach liczników i projektów:</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listy</translation>
    </message>
    <message>
        <source>Paste &amp;into Project</source>
        <translation>Wkle&amp;j do projektu</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Sortuj według</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Rosnąco</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Malejąco</translation>
    </message>
    <message>
        <source>sorted, ascending</source>
        <translation>sortowane rosnąco</translation>
    </message>
    <message>
        <source>sorted, descending</source>
        <translation>sortowane malejąco</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of them.</source>
        <translation>Czas należący do kilku projektów jest w każdym z nich.</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Dokumenty PDF</translation>
    </message>
    <message>
        <source>A row for each &amp;title</source>
        <translation>Wiersz dla każdego &amp;tytułu</translation>
    </message>
    <message>
        <source>A row for each &amp;title, in all programs</source>
        <translation>Wiersz dla każdego &amp;tytułu, we wszystkich programach</translation>
    </message>
    <message>
        <source>All time is in your projects.</source>
        <translation>Cały czas jest w Twoich projektach.</translation>
    </message>
    <message>
        <source>%@: a row for each title</source>
        <translation>%@: wiersz dla każdego tytułu</translation>
    </message>
    <message>
        <source>In reports, rules leave out, rename and categorize programs. A row for each title changes how the timers are kept.</source>
        <translation>W raportach reguły pomijają programy, zmieniają ich nazwy i przypisują kategorie. Wiersz dla każdego tytułu zmienia sposób liczenia.</translation>
    </message>
    <message>
        <source>When a window gets another title, a new row begins instead of the window’s row getting its name. A title that comes back goes on in its old row. After switching this off, the row of a window’s latest title follows the window again, with the time it has.</source>
        <translation>Gdy okno dostaje inny tytuł, zaczyna się nowy wiersz, zamiast by wiersz okna zmieniał nazwę. Tytuł, który wraca, liczony jest dalej w swoim dawnym wierszu. Po wyłączeniu wiersz ostatniego tytułu znów podąża za oknem, z czasem, który ma.</translation>
    </message>
</context>
</TS>
