<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ArchiveFiles</name>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Unpacking %1 …</source>
        <translation>%1 wird entpackt …</translation>
    </message>
    <message>
        <source>%1 %2 % (Esc cancels)</source>
        <translation>%1 %2 % (Esc bricht ab)</translation>
    </message>
    <message>
        <source>%1 (Esc cancels)</source>
        <translation>%1 (Esc bricht ab)</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open With…</source>
        <translation>Öffnen mit …</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>New File</source>
        <translation>Neue Datei</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Copy to Other Pane</source>
        <translation>In die andere Ansicht kopieren</translation>
    </message>
    <message>
        <source>Move to Other Pane</source>
        <translation>In die andere Ansicht verschieben</translation>
    </message>
    <message>
        <source>Empty File</source>
        <translation>Leere Datei</translation>
    </message>
    <message>
        <source>New file</source>
        <translation>Neue Datei</translation>
    </message>
</context>
<context>
    <name>FileWork</name>
    <message numerus="yes">
        <source>%Ln item(s)</source>
        <translation>
            <numerusform>%Ln Objekt</numerusform>
            <numerusform>%Ln Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Only applications of the kiosk are started here</source>
        <translation>Hier werden nur Anwendungen des Kiosks gestartet</translation>
    </message>
    <message>
        <source>The service that opens files is not installed here</source>
        <translation>Der Dienst, der Dateien öffnet, ist hier nicht installiert</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>Verschieben: %1</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Kopieren: %1</translation>
    </message>
    <message>
        <source>Trashing %1</source>
        <translation>In den Papierkorb: %1</translation>
    </message>
    <message>
        <source>Restoring %1</source>
        <translation>Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>Delete %1 for good? This cannot be undone.</source>
        <translation>Endgültig löschen: %1? Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deleting %1</source>
        <translation>Löschen: %1</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Delete all that is in the trash for good? This cannot be undone.</source>
        <translation>Alles im Papierkorb endgültig löschen? Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Emptying the trash</source>
        <translation>Papierkorb wird geleert</translation>
    </message>
    <message>
        <source>A name cannot be “%1”</source>
        <translation>„%1“ kann kein Name sein</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>New file</source>
        <translation>Neue Datei</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Filter: name or *.png;*.jpg</source>
        <translation>Filter: Name oder *.png;*.jpg</translation>
    </message>
</context>
<context>
    <name>FindForm</name>
    <message>
        <source>*.png;*.jpg or a part of the name</source>
        <translation>*.png;*.jpg oder ein Teil des Namens</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Wo:</translation>
    </message>
    <message>
        <source>Sub&amp;folders</source>
        <translation>&amp;Unterordner</translation>
    </message>
    <message>
        <source>&amp;Hidden files</source>
        <translation>&amp;Versteckte Dateien</translation>
    </message>
    <message>
        <source>In &amp;archives</source>
        <translation>In &amp;Archiven</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Wo gesucht wird</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>FindResults</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>FindThread</name>
    <message>
        <source>%1 is not there</source>
        <translation>%1 ist nicht da</translation>
    </message>
</context>
<context>
    <name>FindWindow</name>
    <message>
        <source>F&amp;ind</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Eigenschaften …</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>Find: searching, %1 found</source>
        <translation>Suchen: läuft, %1 gefunden</translation>
    </message>
    <message>
        <source>Find: %1 found</source>
        <translation>Suchen: %1 gefunden</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>%1 found, %2 looked at, in %3 s</source>
        <translation>%1 gefunden, %2 angesehen, in %3 s</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Link to</source>
        <translation>Verweis auf</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 (%2 bytes)</source>
        <translation>%1 (%2 Byte)</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 Einträge</translation>
    </message>
    <message>
        <source>%1 folders, %2 others</source>
        <translation>%1 Ordner, %2 andere</translation>
    </message>
    <message>
        <source>several folders</source>
        <translation>mehrere Ordner</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Accessed</source>
        <translation>Zugriff</translation>
    </message>
</context>
<context>
    <name>ListingState</name>
    <message>
        <source>This folder cannot be read: %1</source>
        <translation>Dieser Ordner kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>No name here matches the filter</source>
        <translation>Kein Name hier entspricht dem Filter</translation>
    </message>
    <message>
        <source>Nothing to show here, hidden files aside</source>
        <translation>Hier gibt es nichts, außer versteckten Dateien</translation>
    </message>
    <message>
        <source>This folder is empty</source>
        <translation>Dieser Ordner ist leer</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>A file manager that shows what libveskfmcore %1 can do.</source>
        <translation>Eine Dateiverwaltung, die zeigt, was libveskfmcore %1 kann.</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Absteigend</translation>
    </message>
</context>
<context>
    <name>OperationTracker</name>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>something is not there any more</source>
        <translation>etwas ist nicht mehr da</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>der Name ist vergeben</translation>
    </message>
    <message>
        <source>no space left</source>
        <translation>kein Platz mehr</translation>
    </message>
    <message>
        <source>a folder cannot go into itself</source>
        <translation>ein Ordner kann nicht in sich selbst</translation>
    </message>
    <message>
        <source>not possible here</source>
        <translation>hier nicht möglich</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>something changed while it was moved, and stays</source>
        <translation>etwas wurde beim Verschieben geändert und bleibt</translation>
    </message>
    <message>
        <source>The service for file operations is not installed here</source>
        <translation>Der Dienst für Dateioperationen ist hier nicht installiert</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Shows directories. In a kiosk there is no menu bar, and no way to type a path, to change settings, to open
another window, or to start an application that the kiosk does not allow.</source>
        <translation>Zeigt Verzeichnisse. Im Kiosk gibt es keine Menüleiste und keine Möglichkeit, einen Pfad einzugeben,
Einstellungen zu ändern, ein weiteres Fenster zu öffnen oder eine Anwendung zu starten, die er nicht erlaubt.</translation>
    </message>
    <message>
        <source>Directory to show, a path or a URL; the current one if not given. Each gets a window.</source>
        <translation>Das Verzeichnis, ein Pfad oder eine URL; ohne Angabe das aktuelle. Jedes bekommt ein Fenster.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Diese Hilfe zeigen und enden.</translation>
    </message>
    <message>
        <source>Print the rows as a table and exit.</source>
        <translation>Die Zeilen als Tabelle ausgeben und enden.</translation>
    </message>
    <message>
        <source>Save a picture of the window and exit.</source>
        <translation>Ein Bild des Fensters speichern und enden.</translation>
    </message>
    <message>
        <source>Show hidden files too.</source>
        <translation>Auch versteckte Dateien zeigen.</translation>
    </message>
    <message>
        <source>Sort by a column: Name, Type, Size, Modified, ...</source>
        <translation>Nach einer Spalte sortieren: Name, Type, Size, Modified, ...</translation>
    </message>
    <message>
        <source>Show only names that match: *.png;*.jpg, or a part of the name.</source>
        <translation>Nur passende Namen zeigen: *.png;*.jpg oder ein Teil des Namens.</translation>
    </message>
    <message>
        <source>more than one directory</source>
        <translation>mehr als ein Verzeichnis</translation>
    </message>
</context>
<context>
    <name>Pane</name>
    <message>
        <source>There is no folder %1</source>
        <translation>Es gibt keinen Ordner %1</translation>
    </message>
    <message>
        <source>%1 is not there any more</source>
        <translation>%1 ist nicht mehr da</translation>
    </message>
</context>
<context>
    <name>PathBar</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>There is no %1</source>
        <translation>%1 gibt es nicht</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
</context>
<context>
    <name>PlaceWork</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open in Other Pane</source>
        <translation>In der anderen Ansicht öffnen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Remove from Favorites</source>
        <translation>Aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <translation>Zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>Einhängen</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Aushängen</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Auswerfen</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Mounting %1 …</source>
        <translation>%1 wird eingehängt …</translation>
    </message>
</context>
<context>
    <name>PropertiesDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschaften von %1</translation>
    </message>
    <message>
        <source>Properties of %1 entries</source>
        <translation>Eigenschaften von %1 Einträgen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>This page failed: %1</source>
        <translation>Diese Seite ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>This page failed</source>
        <translation>Diese Seite ist fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>there is no column %1</source>
        <translation>es gibt keine Spalte %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>%1: there is no such directory</source>
        <translation>%1: ein solches Verzeichnis gibt es nicht</translation>
    </message>
    <message>
        <source>%1: not a directory</source>
        <translation>%1: kein Verzeichnis</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Sort numbers in names by their value</source>
        <translation>Zahlen in Namen nach ihrem Wert sortieren</translation>
    </message>
    <message>
        <source>Sort as the language does</source>
        <translation>Nach den Regeln der Sprache sortieren</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Shade every second row</source>
        <translation>Jede zweite Zeile tönen</translation>
    </message>
    <message>
        <source>Show sizes in bytes</source>
        <translation>Größen in Byte zeigen</translation>
    </message>
    <message>
        <source>Folders with a description of their own</source>
        <translation>Ordner mit eigener Beschreibung</translation>
    </message>
    <message>
        <source>Use its name</source>
        <translation>Deren Namen verwenden</translation>
    </message>
    <message>
        <source>Use its icon</source>
        <translation>Deren Symbol verwenden</translation>
    </message>
    <message>
        <source>&amp;Thumbnails</source>
        <translation>&amp;Vorschaubilder</translation>
    </message>
    <message>
        <source>Show thumbnails</source>
        <translation>Vorschaubilder zeigen</translation>
    </message>
    <message>
        <source>Also on the network</source>
        <translation>Auch im Netzwerk</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Documents and other files</source>
        <translation>Dokumente und andere Dateien</translation>
    </message>
    <message>
        <source>&amp;Of:</source>
        <translation>V&amp;on:</translation>
    </message>
    <message>
        <source>Pictures &amp;up to:</source>
        <translation>Bilder &amp;bis:</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>any size</source>
        <translation>jede Größe</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Show the whole path in the title</source>
        <translation>Den ganzen Pfad im Titel zeigen</translation>
    </message>
    <message>
        <source>Show the slider for the icon size</source>
        <translation>Den Regler für die Symbolgröße zeigen</translation>
    </message>
    <message>
        <source>Show the free space</source>
        <translation>Den freien Platz zeigen</translation>
    </message>
    <message>
        <source>One location bar for both panes</source>
        <translation>Eine Adressleiste für beide Ansichten</translation>
    </message>
    <message>
        <source>T&amp;ool bar:</source>
        <translation>&amp;Werkzeugleiste:</translation>
    </message>
    <message>
        <source>Side &amp;panel</source>
        <translation>&amp;Seitenleiste</translation>
    </message>
    <message>
        <source>Shown in the side panel:</source>
        <translation>In der Seitenleiste:</translation>
    </message>
    <message>
        <source>Old look</source>
        <translation>Altes Aussehen</translation>
    </message>
    <message>
        <source>Groups can be collapsed</source>
        <translation>Gruppen lassen sich zuklappen</translation>
    </message>
    <message>
        <source>&amp;Behaviour</source>
        <translation>&amp;Verhalten</translation>
    </message>
    <message>
        <source>Menu of a folder</source>
        <translation>Menü eines Ordners</translation>
    </message>
    <message>
        <source>Offer to delete</source>
        <translation>Löschen anbieten</translation>
    </message>
    <message>
        <source>Offer the settings of the view</source>
        <translation>Einstellungen der Ansicht anbieten</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Also for files on the network</source>
        <translation>Auch für Dateien im Netzwerk</translation>
    </message>
    <message>
        <source>&amp;Largest size:</source>
        <translation>&amp;Höchstgröße:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anderes</translation>
    </message>
    <message>
        <source>Open Windows shares among the network resources</source>
        <translation>Windows-Freigaben unter den Netzwerkressourcen öffnen</translation>
    </message>
    <message>
        <source>&amp;Idle services end after:</source>
        <translation>&amp;Untätige Dienste enden nach:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Open encrypted archives without asking</source>
        <translation>Verschlüsselte Archive ohne Nachfrage öffnen</translation>
    </message>
    <message>
        <source>Name attachments in the subject of a mail</source>
        <translation>Anhänge im Betreff einer Mail nennen</translation>
    </message>
    <message>
        <source>&amp;Applications</source>
        <translation>A&amp;nwendungen</translation>
    </message>
    <message>
        <source>Sound and video</source>
        <translation>Ton und Video</translation>
    </message>
    <message>
        <source>Development</source>
        <translation>Entwicklung</translation>
    </message>
    <message>
        <source>Education</source>
        <translation>Bildung</translation>
    </message>
    <message>
        <source>Games</source>
        <translation>Spiele</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Büro</translation>
    </message>
    <message>
        <source>Science</source>
        <translation>Wissenschaft</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Zubehör</translation>
    </message>
    <message>
        <source>Offered &amp;categories:</source>
        <translation>Angebotene &amp;Kategorien:</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Set by the administrator</source>
        <translation>Von der Verwaltung festgelegt</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Icons: %1</source>
        <translation>Symbole: %1</translation>
    </message>
    <message>
        <source>Listing %1 …</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entry(s)</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Eigenschaften …</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Larger Icons</source>
        <translation>Größere Symbole</translation>
    </message>
    <message>
        <source>Smaller Icons</source>
        <translation>Kleinere Symbole</translation>
    </message>
    <message>
        <source>Usual Size</source>
        <translation>Übliche Größe</translation>
    </message>
    <message>
        <source>Hidden Files</source>
        <translation>Versteckte Dateien</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>Side Panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Two Panes</source>
        <translation>Zwei Ansichten</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <translation>Zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>To the Side Panel</source>
        <translation>Zur Seitenleiste</translation>
    </message>
    <message>
        <source>To the Other Pane</source>
        <translation>Zur anderen Ansicht</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Suchen …</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
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
        <source>Sort By</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>%1 is not there any more</source>
        <translation>%1 ist nicht mehr da</translation>
    </message>
</context>
</TS>
