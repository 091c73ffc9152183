<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BackupEngine</name>
    <message>
        <source>A backup is running already.</source>
        <translation>Es läuft schon eine Sicherung.</translation>
    </message>
</context>
<context>
    <name>CheckItemDelegate</name>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Mirrors a folder and checks the copy.</source>
        <translation>Spiegelt einen Ordner und prüft die Kopie.</translation>
    </message>
    <message>
        <source>Copy the content of DIR.</source>
        <translation>Den Inhalt von DIR kopieren.</translation>
    </message>
    <message>
        <source>Copy into DIR.</source>
        <translation>Nach DIR kopieren.</translation>
    </message>
    <message>
        <source>Copy at once, without a window.</source>
        <translation>Sofort und ohne Fenster kopieren.</translation>
    </message>
    <message>
        <source>Read the copy back; after copying if with --run.</source>
        <translation>Die Kopie zurücklesen; mit --run nach dem Kopieren.</translation>
    </message>
    <message>
        <source>Read the passphrase for the manifest's signature from the first line of the standard input.</source>
        <translation>Das Passwort für die Unterschrift des Manifests aus der ersten Zeile der Standardeingabe lesen.</translation>
    </message>
    <message>
        <source>Write pictures of the window into DIR.</source>
        <translation>Bilder des Fensters in DIR ablegen.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe zeigen.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>--run needs --source.</source>
        <translation>Zu --run gehört --source.</translation>
    </message>
    <message>
        <source>--run and --verify need --target.</source>
        <translation>Zu --run und --verify gehört --target.</translation>
    </message>
</context>
<context>
    <name>EditableTableView</name>
    <message>
        <source>Run</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>EntryMirror</name>
    <message>
        <source>Skipped: it is a pipe, a socket or a device.</source>
        <translation>Übergangen: Es ist eine Pipe, ein Socket oder ein Gerät.</translation>
    </message>
    <message>
        <source>The folder's modification time and permissions were not kept: %1</source>
        <translation>Änderungszeit und Rechte des Ordners blieben nicht erhalten: %1</translation>
    </message>
    <message>
        <source>The folder cannot be created: %1</source>
        <translation>Der Ordner kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>The copy cannot be put in its place: %1</source>
        <translation>Die Kopie kann nicht an ihren Platz gebracht werden: %1</translation>
    </message>
    <message>
        <source>It kept changing while it was being read.</source>
        <translation>Sie änderte sich beim Lesen immer wieder.</translation>
    </message>
    <message>
        <source>Its permissions were not kept: %1</source>
        <translation>Ihre Rechte blieben nicht erhalten: %1</translation>
    </message>
    <message>
        <source>The symbolic link cannot be read: %1</source>
        <translation>Die symbolische Verknüpfung kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The symbolic link cannot be created: %1</source>
        <translation>Die symbolische Verknüpfung kann nicht angelegt werden: %1</translation>
    </message>
</context>
<context>
    <name>FileCopier</name>
    <message>
        <source>The copy cannot be created: %1</source>
        <translation>Die Kopie kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>The copy cannot be written: %1</source>
        <translation>Die Kopie kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The copy cannot be completed: %1</source>
        <translation>Die Kopie kann nicht abgeschlossen werden: %1</translation>
    </message>
    <message>
        <source>It was copied, but not its modification time and permissions: %1</source>
        <translation>Sie wurde kopiert, aber nicht ihre Änderungszeit und ihre Rechte: %1</translation>
    </message>
</context>
<context>
    <name>FileListModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gesichert</translation>
    </message>
</context>
<context>
    <name>FileListing</name>
    <message>
        <source>link</source>
        <translation>Verweis</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>FileReader</name>
    <message>
        <source>It is no longer a regular file.</source>
        <translation>Es ist keine gewöhnliche Datei mehr.</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Lesen nicht möglich: %1</translation>
    </message>
    <message>
        <source>It vanished before it was read: %1</source>
        <translation>Verschwunden, bevor gelesen wurde: %1</translation>
    </message>
    <message>
        <source>It vanished while it was being read: %1</source>
        <translation>Beim Lesen verschwunden: %1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Files in a &amp;page:</source>
        <translation>Dateien je &amp;Seite:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>How many files "Next" adds to the list, from %1 to %2</source>
        <translation>Wie viele Dateien „Weiter“ der Liste hinzufügt, von %1 bis %2</translation>
    </message>
</context>
<context>
    <name>FolderCheck</name>
    <message>
        <source>No target folder was given.</source>
        <translation>Es ist kein Zielordner angegeben.</translation>
    </message>
    <message>
        <source>The target folder %1 does not exist or cannot be read.</source>
        <translation>Den Zielordner %1 gibt es nicht, oder er ist nicht lesbar.</translation>
    </message>
    <message>
        <source>No source folder was given.</source>
        <translation>Es ist kein Quellordner angegeben.</translation>
    </message>
    <message>
        <source>The source folder %1 does not exist.</source>
        <translation>Den Quellordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>The source %1 is not a folder.</source>
        <translation>Die Quelle %1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The source folder %1 cannot be read.</source>
        <translation>Der Quellordner %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The name of the target folder %1 is not valid text.</source>
        <translation>Der Name des Zielordners %1 ist kein gültiger Text.</translation>
    </message>
    <message>
        <source>The target %1 is not a folder.</source>
        <translation>Das Ziel %1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The source and the target are the same folder.</source>
        <translation>Quelle und Ziel sind derselbe Ordner.</translation>
    </message>
    <message>
        <source>The target folder %1 is inside the source folder.</source>
        <translation>Der Zielordner %1 liegt im Quellordner.</translation>
    </message>
    <message>
        <source>The source folder %1 is inside the target's own folders.</source>
        <translation>Der Quellordner %1 liegt in den eigenen Ordnern des Ziels.</translation>
    </message>
    <message>
        <source>%1 is in the way: it is not a folder.</source>
        <translation>%1 ist im Weg: Es ist kein Ordner.</translation>
    </message>
    <message>
        <source>%1 holds files that no backup has put there. Choose another target.</source>
        <translation>In %1 liegen Dateien, die keine Sicherung dort abgelegt hat. Wählen Sie ein anderes Ziel.</translation>
    </message>
    <message>
        <source>The target folder %1 cannot be created.</source>
        <translation>Der Zielordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The target folder %1 is not writable.</source>
        <translation>In den Zielordner %1 kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>JobModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Run this backup</source>
        <translation>Diese Sicherung starten</translation>
    </message>
    <message>
        <source>Remove this backup from the list</source>
        <translation>Diese Sicherung aus der Liste entfernen</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>New backup</source>
        <translation>Neue Sicherung</translation>
    </message>
    <message>
        <source>Removed "%1" from the list; its copies stay where they are</source>
        <translation>„%1“ ist aus der Liste entfernt; die Kopien bleiben, wo sie sind</translation>
    </message>
    <message>
        <source>How much is copied in a second at most; 0 is no limit</source>
        <translation>Wie viel je Sekunde höchstens kopiert wird; 0 ist keine Grenze</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source> MiB/s</source>
        <translation> MiB/s</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Bandwidth &amp;limit:</source>
        <translation>Band&amp;breite höchstens:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Folder to back up</source>
        <translation>Zu sichernder Ordner</translation>
    </message>
    <message>
        <source>The list of backups could not be saved.</source>
        <translation>Die Liste der Sicherungen konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>&amp;Backups</source>
        <translation>&amp;Sicherungen</translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation>&amp;Dateien</translation>
    </message>
    <message>
        <source>&amp;Throughput</source>
        <translation>D&amp;urchsatz</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>&amp;New backup</source>
        <translation>&amp;Neue Sicherung</translation>
    </message>
    <message>
        <source>Add &amp;folder to choose from...</source>
        <translation>&amp;Ordner zur Auswahl hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>&amp;Menü</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>ManifestWriter</name>
    <message>
        <source>The manifest cannot be written: %1</source>
        <translation>Das Manifest kann nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>MirrorTask</name>
    <message>
        <source>Not everything in it can be removed: %1</source>
        <translation>Nicht alles darin kann gelöscht werden: %1</translation>
    </message>
    <message>
        <source>The folder cannot be created: %1</source>
        <translation>Der Ordner kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>It is no longer in the source, but its copy cannot be removed: %1</source>
        <translation>In der Quelle gibt es sie nicht mehr, aber die Kopie kann nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>Its old copy is not in the manifest.</source>
        <translation>Die alte Kopie steht nicht im Manifest.</translation>
    </message>
    <message>
        <source>The folder cannot be removed: %1</source>
        <translation>Der Ordner kann nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>It vanished before it was read: %1</source>
        <translation>Verschwunden, bevor gelesen wurde: %1</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Lesen nicht möglich: %1</translation>
    </message>
</context>
<context>
    <name>ProgressPanel</name>
    <message>
        <source>No backup is running.</source>
        <translation>Es läuft keine Sicherung.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Backing up "%1"</source>
        <translation>„%1“ wird gesichert</translation>
    </message>
    <message>
        <source>"%1" was cancelled.</source>
        <translation>„%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>"%1" is complete.</source>
        <translation>„%1“ ist vollständig.</translation>
    </message>
    <message>
        <source>"%1" has problems.</source>
        <translation>Bei „%1“ gab es Probleme.</translation>
    </message>
</context>
<context>
    <name>ReportText</name>
    <message>
        <source>Preparing</source>
        <translation>Vorbereiten</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Durchsehen</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Removing</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Abschließen</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>%1: %2 of %3 files, %4 of %5  %6</source>
        <translation>%1: %2 von %3 Dateien, %4 von %5  %6</translation>
    </message>
    <message>
        <source>%1%2 new, %3 changed, %4 unchanged, %5 removed, %6 verified, %7 failed; %8 copied; %9 problems</source>
        <translation>%1%2 neu, %3 geändert, %4 unverändert, %5 gelöscht, %6 geprüft, %7 misslungen; %8 kopiert; %9 Probleme</translation>
    </message>
    <message>
        <source>Cancelled: </source>
        <translation>Abgebrochen: </translation>
    </message>
</context>
<context>
    <name>ThroughputPage</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Copied in a second</source>
        <translation>Je Sekunde kopiert</translation>
    </message>
    <message>
        <source>Bytes copied in each second</source>
        <translation>In jeder Sekunde kopierte Bytes</translation>
    </message>
</context>
<context>
    <name>VerifyTask</name>
    <message>
        <source>There is no manifest to compare with: %1</source>
        <translation>Es gibt kein Manifest zum Vergleichen: %1</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Lesen nicht möglich: %1</translation>
    </message>
    <message>
        <source>Lines that are no checksums: %1, the first is line %2.</source>
        <translation>Zeilen, die keine Prüfsummen sind: %1, die erste ist Zeile %2.</translation>
    </message>
    <message>
        <source>The manifest is not signed.</source>
        <translation>Das Manifest ist nicht unterschrieben.</translation>
    </message>
    <message>
        <source>The signature is not that of the manifest under this passphrase.</source>
        <translation>Die Unterschrift gehört nicht zu diesem Manifest und diesem Passwort.</translation>
    </message>
    <message>
        <source>It is not in the manifest.</source>
        <translation>Steht nicht im Manifest.</translation>
    </message>
    <message>
        <source>It changed while it was being read.</source>
        <translation>Beim Lesen geändert.</translation>
    </message>
    <message>
        <source>Its content is not what the manifest says.</source>
        <translation>Der Inhalt ist nicht der im Manifest.</translation>
    </message>
    <message>
        <source>It is in the manifest, but missing.</source>
        <translation>Steht im Manifest, fehlt aber.</translation>
    </message>
</context>
</TS>
