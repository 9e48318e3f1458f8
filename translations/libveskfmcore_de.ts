<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ApplicationDialog</name>
    <message>
        <source>Always open this type with it</source>
        <translation>Diesen Typ immer damit öffnen</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Öffnen mit</translation>
    </message>
    <message>
        <source>or a command line</source>
        <translation>oder eine Befehlszeile</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Open:</source>
        <translation>Öffnen:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Programm auswählen</translation>
    </message>
    <message>
        <source>Set as Default</source>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>For this type</source>
        <translation>Für diesen Typ</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Choose an application, or type a command line.</source>
        <translation>Wählen Sie eine Anwendung oder geben Sie eine Befehlszeile ein.</translation>
    </message>
    <message>
        <source>A type is written like &quot;text/plain&quot;.</source>
        <translation>Ein Typ wird wie &quot;text/plain&quot; geschrieben.</translation>
    </message>
    <message>
        <source>There is no such program.</source>
        <translation>Dieses Programm gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 cannot be started.</source>
        <translation>%1 kann nicht gestartet werden.</translation>
    </message>
</context>
<context>
    <name>ArchiveProblem</name>
    <message>
        <source>%1 cannot be read: the program that reads archives does not start</source>
        <translation>%1 kann nicht gelesen werden: Das Programm, das Archive liest, startet nicht</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is damaged, or is no archive</source>
        <translation>%1 ist beschädigt oder kein Archiv</translation>
    </message>
    <message>
        <source>%1 is encrypted</source>
        <translation>%1 ist verschlüsselt</translation>
    </message>
    <message>
        <source>%1 is packed in a way that cannot be unpacked here</source>
        <translation>%1 ist auf eine Weise gepackt, die hier nicht entpackt werden kann</translation>
    </message>
    <message>
        <source>%1 holds too many files</source>
        <translation>%1 enthält zu viele Dateien</translation>
    </message>
    <message>
        <source>%1 holds folders that are nested too deeply</source>
        <translation>%1 enthält zu tief verschachtelte Ordner</translation>
    </message>
    <message>
        <source>%1 holds a name that is too long</source>
        <translation>%1 enthält einen zu langen Namen</translation>
    </message>
    <message>
        <source>%1 is too large when it is unpacked</source>
        <translation>%1 ist entpackt zu groß</translation>
    </message>
    <message>
        <source>There is not enough free space to unpack %1</source>
        <translation>Zum Entpacken von %1 ist nicht genug Platz frei</translation>
    </message>
    <message>
        <source>%1 cannot be unpacked into the cache directory</source>
        <translation>%1 kann nicht in das Cache-Verzeichnis entpackt werden</translation>
    </message>
    <message>
        <source>%1 is damaged, or needs too much memory</source>
        <translation>%1 ist beschädigt oder braucht zu viel Speicher</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>%1 hat sich geändert</translation>
    </message>
</context>
<context>
    <name>CorePaths</name>
    <message>
        <source>copy</source>
        <translation>Kopie</translation>
    </message>
</context>
<context>
    <name>EntryBasePropertySet</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>MIME type</source>
        <translation>MIME-Typ</translation>
    </message>
    <message>
        <source>symbolic link</source>
        <translation>symbolische Verknüpfung</translation>
    </message>
</context>
<context>
    <name>EntryDescribeThread</name>
    <message numerus="yes">
        <source>%n entry(s)</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileInfo</name>
    <message>
        <source>File information</source>
        <translation>Dateiinformationen</translation>
    </message>
    <message>
        <source>Size, time of the last change, owner and permissions of files.</source>
        <translation>Größe, Zeit der letzten Änderung, Besitzer und Rechte von Dateien.</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Rechte</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n file(s)</source>
        <translation>
            <numerusform>%1 in %n Datei</numerusform>
            <numerusform>%1 in %n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Besitzer</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>(various)</source>
        <translation>(verschieden)</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Besitzer:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>Permissions:</source>
        <translation>Rechte:</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The permissions of these could not be read or changed:</source>
        <translation>Die Rechte dieser Dateien konnten nicht gelesen oder geändert werden:</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Contains text</source>
        <translation>Enthält Text</translation>
    </message>
    <message>
        <source>at any time</source>
        <translation>irgendwann</translation>
    </message>
    <message>
        <source>in the last hour</source>
        <translation>in der letzten Stunde</translation>
    </message>
    <message>
        <source>in the last 24 hours</source>
        <translation>in den letzten 24 Stunden</translation>
    </message>
    <message>
        <source>in the last 7 days</source>
        <translation>in den letzten 7 Tagen</translation>
    </message>
    <message>
        <source>in the last 30 days</source>
        <translation>in den letzten 30 Tagen</translation>
    </message>
    <message>
        <source>in the last 365 days</source>
        <translation>in den letzten 365 Tagen</translation>
    </message>
    <message>
        <source>Not all permissions could be changed.</source>
        <translation>Nicht alle Rechte konnten geändert werden.</translation>
    </message>
    <message>
        <source>Changing permissions …</source>
        <translation>Rechte werden geändert …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>from</source>
        <translation>von</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>shortcut</source>
        <translation>Verknüpfung</translation>
    </message>
</context>
<context>
    <name>IconSize</name>
    <message>
        <source>Tiny</source>
        <translation>Winzig</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Very Large</source>
        <translation>Sehr groß</translation>
    </message>
    <message>
        <source>Huge</source>
        <translation>Riesig</translation>
    </message>
</context>
<context>
    <name>LocalPlaces</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Storage devices</source>
        <translation>Speichergeräte</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Network resources</source>
        <translation>Netzwerkressourcen</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>PathAnalyzer</name>
    <message>
        <source>Nothing is selected</source>
        <translation>Nichts ist ausgewählt</translation>
    </message>
    <message>
        <source>Nothing can be put there</source>
        <translation>Dort kann nichts abgelegt werden</translation>
    </message>
    <message>
        <source>Can&apos;t make operation over pair of dir and file entries</source>
        <translation>Ordner und Datei können nicht durcheinander ersetzt werden</translation>
    </message>
    <message>
        <source>Can&apos;t make operation over entries and file entry</source>
        <translation>Auf eine Datei kann der Vorgang nicht angewendet werden</translation>
    </message>
    <message>
        <source>The operation was cancelled</source>
        <translation>Der Vorgang wurde abgebrochen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
</context>
<context>
    <name>Service</name>
    <message>
        <source>Debug message</source>
        <translation>Meldung zur Fehlersuche</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>Schwerer Fehler</translation>
    </message>
</context>
<context>
    <name>ServiceInterfaceSingletone</name>
    <message>
        <source>can&apos;t connect to DBus service %1, perhaps usage &apos;dbus-launch &lt;program&gt;&apos; can solve this problem</source>
        <translation>Keine Verbindung zum DBus-Dienst %1; vielleicht hilft ein Aufruf mit „dbus-launch &lt;Programm&gt;“</translation>
    </message>
    <message>
        <source>service %1 was not installed, perhaps usage &apos;dbus-launch &lt;program&gt;&apos; can solve this problem</source>
        <translation>Der Dienst %1 ist nicht installiert; vielleicht hilft ein Aufruf mit „dbus-launch &lt;Programm&gt;“</translation>
    </message>
    <message>
        <source>DBus service %1 does not answer: %2</source>
        <translation>Der DBus-Dienst %1 antwortet nicht: %2</translation>
    </message>
</context>
</TS>
