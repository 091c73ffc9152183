<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BackupRun</name>
    <message>
        <source>Verifying</source>
        <translation>Prüft</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>Stellt wieder her</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Bereitet vor</translation>
    </message>
    <message>
        <source>Backing up: %1 of %2 files, %3 of %4  %5</source>
        <translation>Sichert: %1 von %2 Dateien, %3 von %4  %5</translation>
    </message>
    <message>
        <source>Snapshot %1: %2 new, %3 changed, %4 unchanged files; %5 read, %6 added.</source>
        <translation>Snapshot %1: %2 neue, %3 geänderte, %4 unveränderte Dateien; %5 gelesen, %6 hinzugefügt.</translation>
    </message>
    <message>
        <source>All of the repository was read back: no errors.</source>
        <translation>Das ganze Repository wurde zurückgelesen: keine Fehler.</translation>
    </message>
    <message>
        <source>Restored below %1.</source>
        <translation>Wiederhergestellt unter %1.</translation>
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
    <name>Console</name>
    <message>
        <source>Backups, by restic.</source>
        <translation>Sicherungen mit restic.</translation>
    </message>
    <message>
        <source>Back up FOLDER.</source>
        <translation>Den Ordner FOLDER sichern.</translation>
    </message>
    <message>
        <source>A folder, or an address such as sftp:host:/path.</source>
        <translation>Ein Ordner oder eine Adresse wie sftp:host:/pfad.</translation>
    </message>
    <message>
        <source>Back up the source into the target.</source>
        <translation>Die Quelle ins Ziel sichern.</translation>
    </message>
    <message>
        <source>Read all of the target back; after the backup if with --run.</source>
        <translation>Das ganze Ziel zurücklesen; mit --run nach der Sicherung.</translation>
    </message>
    <message>
        <source>Restore SNAPSHOT, or the &quot;latest&quot;, from the target into the folder named last, which must be empty or new.</source>
        <translation>SNAPSHOT oder den letzten („latest“) aus dem Ziel in den zuletzt genannten Ordner wiederherstellen, der leer oder neu sein muss.</translation>
    </message>
    <message>
        <source>List the snapshots in the target.</source>
        <translation>Die Snapshots im Ziel auflisten.</translation>
    </message>
    <message>
        <source>Make the repository if it is not there.</source>
        <translation>Das Repository anlegen, wenn es fehlt.</translation>
    </message>
    <message>
        <source>Remove a lock that a dead program left.</source>
        <translation>Eine Sperre entfernen, die ein beendetes Programm hinterlassen hat.</translation>
    </message>
    <message>
        <source>Write RATE KB a second at most.</source>
        <translation>Höchstens RATE KB in der Sekunde schreiben.</translation>
    </message>
    <message>
        <source>Say nothing unless something is wrong.</source>
        <translation>Nichts melden, außer wenn etwas nicht stimmt.</translation>
    </message>
    <message>
        <source>Write pictures of the window into FOLDER.</source>
        <translation>Bilder des Fensters im Ordner FOLDER ablegen.</translation>
    </message>
    <message>
        <source>The password is the first line of the standard input; on a terminal it is asked for.
Exit status:
  0  done
  1  failed
  2  the arguments make no sense, or something is missing: restic, source, repository, password
  3  backed up, but for some files that could not be read
  4  verifying found damage
  5  wrong password
  6  the repository is locked
</source>
        <translation>Das Passwort ist die erste Zeile der Standardeingabe; auf einem Terminal wird danach gefragt.
Endstatus:
  0  fertig
  1  gescheitert
  2  die Argumente ergeben keinen Sinn, oder es fehlt etwas: restic, Quelle, Repository, Passwort
  3  gesichert bis auf einige Dateien, die nicht gelesen werden konnten
  4  beim Prüfen wurden Schäden gefunden
  5  falsches Passwort
  6  das Repository ist gesperrt
</translation>
    </message>
    <message>
        <source>Password of the repository: </source>
        <translation>Passwort des Repositorys: </translation>
    </message>
    <message>
        <source>--init makes a repository.</source>
        <translation>--init legt ein Repository an.</translation>
    </message>
    <message>
        <source>--unlock removes a dead program&apos;s lock.</source>
        <translation>--unlock entfernt die Sperre eines beendeten Programms.</translation>
    </message>
    <message>
        <source>Say --target, and --run with --source, --verify, --snapshots, or --restore with a snapshot and a folder. --help tells more.</source>
        <translation>Nötig sind --target und dazu --run mit --source, --verify, --snapshots oder --restore mit einem Snapshot und einem Ordner. --help sagt mehr.</translation>
    </message>
</context>
<context>
    <name>EditableTableView</name>
    <message>
        <source>Run</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>FileListModel</name>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
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
        <source>Rights</source>
        <translation>Rechte</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>&amp;Restore...</source>
        <translation>&amp;Wiederherstellen...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Show snapshots</source>
        <translation>S&amp;napshots zeigen</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>Files in a &amp;page:</source>
        <translation>Dateien je S&amp;eite:</translation>
    </message>
    <message>
        <source>Empty folder to restore into</source>
        <translation>Leerer Ordner für das Wiederhergestellte</translation>
    </message>
    <message>
        <source>Restoring &quot;%1&quot; into %2</source>
        <translation>Stellt „%1“ in %2 wieder her</translation>
    </message>
    <message>
        <source>Nothing was restored: there is one run at a time.</source>
        <translation>Nichts wurde wiederhergestellt: Es läuft immer nur eines.</translation>
    </message>
    <message>
        <source>There is no snapshot yet.</source>
        <translation>Es gibt noch keinen Snapshot.</translation>
    </message>
    <message>
        <source>The backup has no repository yet.</source>
        <translation>Die Sicherung hat noch kein Repository.</translation>
    </message>
    <message>
        <source>&quot;Show snapshots&quot; asks for the password of the repository.</source>
        <translation>„Snapshots zeigen“ fragt nach dem Passwort des Repositorys.</translation>
    </message>
    <message>
        <source>Looking for snapshots...</source>
        <translation>Sucht Snapshots ...</translation>
    </message>
    <message>
        <source>How many files &quot;Next&quot; adds to the list, from 10 to 10000</source>
        <translation>Wie viele Dateien „Weiter“ der Liste hinzufügt, von 10 bis 10000</translation>
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
        <source>Repository</source>
        <translation>Repository</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Ordner wählen ...</translation>
    </message>
    <message>
        <source>Verify: no</source>
        <translation>Prüfen: nein</translation>
    </message>
    <message>
        <source>Verify: yes</source>
        <translation>Prüfen: ja</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source> KB/s</source>
        <translation> KB/s</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>How much the next run writes to the repository in a second at most</source>
        <translation>Wie viel der nächste Lauf in einer Sekunde höchstens ins Repository schreibt</translation>
    </message>
    <message>
        <source>There is nothing to back up yet.

&quot;New backup&quot; adds a row. Choose the folder to back up and the repository that is to keep the backups: another folder, or any address that restic takes. Then press &quot;Run&quot;.</source>
        <translation>Es gibt noch nichts zu sichern.

„Neue Sicherung“ fügt eine Zeile hinzu. Wählen Sie den Ordner, der gesichert werden soll, und das Repository, das die Sicherungen aufbewahrt: einen anderen Ordner oder jede Adresse, die restic kennt. Dann drücken Sie „Starten“.</translation>
    </message>
    <message>
        <source>&amp;New backup</source>
        <translation>&amp;Neue Sicherung</translation>
    </message>
    <message>
        <source>Bandwidth &amp;limit:</source>
        <translation>Band&amp;breite höchstens:</translation>
    </message>
    <message>
        <source>New backup</source>
        <translation>Neue Sicherung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not started: there is one run at a time.</source>
        <translation>„%1“ wurde nicht gestartet: Es läuft immer nur eines.</translation>
    </message>
    <message>
        <source>Say first where the backups of &quot;%1&quot; are to be kept.</source>
        <translation>Zuerst muss gesagt sein, wo die Sicherungen von „%1“ aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Password of the repository %1:</source>
        <translation>Passwort des Repositorys %1:</translation>
    </message>
    <message>
        <source>Backing up &quot;%1&quot;</source>
        <translation>Sichert „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is running. Cancel it before you remove it.</source>
        <translation>„%1“ läuft. Vor dem Entfernen muss es abgebrochen werden.</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the list? Its backups stay in the repository.</source>
        <translation>„%1“ aus der Liste entfernen? Die Sicherungen bleiben im Repository.</translation>
    </message>
    <message>
        <source>Folder to back up</source>
        <translation>Zu sichernder Ordner</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>%1 abbrechen</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>%1 starten</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
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
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Es läuft noch etwas. Abbrechen und das Fenster schließen?</translation>
    </message>
    <message>
        <source>The list of backups could not be saved.</source>
        <translation>Die Liste der Sicherungen konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Nothing is running.</source>
        <translation>Es läuft nichts.</translation>
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
        <source>What restic said</source>
        <translation>Was restic sagte</translation>
    </message>
    <message>
        <source>There is no repository there yet. Create one? Whoever loses its password loses the backups in it.</source>
        <translation>Dort ist noch kein Repository. Eines anlegen? Wer sein Passwort verliert, verliert die Sicherungen darin.</translation>
    </message>
    <message>
        <source>The repository is locked. Remove the lock if the program that made it is gone?</source>
        <translation>Das Repository ist gesperrt. Die Sperre entfernen, wenn das Programm, das gesperrt hat, nicht mehr läuft?</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message>
        <source>Some files could not be read; all others are backed up.</source>
        <translation>Einige Dateien konnten nicht gelesen werden; alle anderen sind gesichert.</translation>
    </message>
    <message>
        <source>Cancelled. The next backup uses what was stored so far.</source>
        <translation>Abgebrochen. Was schon gespeichert ist, verwendet die nächste Sicherung.</translation>
    </message>
    <message>
        <source>There is no restic. Install the package &quot;restic&quot;, or say where the program is: restic=/path/of/restic at the top of %1.</source>
        <translation>Es gibt hier kein restic. Installieren Sie das Paket „restic“, oder sagen Sie, wo das Programm ist: restic=/pfad/zu/restic am Anfang von %1.</translation>
    </message>
    <message>
        <source>A repository needs a password. Nothing was done.</source>
        <translation>Ein Repository braucht ein Passwort. Nichts wurde getan.</translation>
    </message>
    <message>
        <source>This is not the repository&apos;s password. Nothing was changed; type it again.</source>
        <translation>Das ist nicht das Passwort des Repositorys. Nichts wurde geändert; geben Sie es noch einmal ein.</translation>
    </message>
    <message>
        <source>There is no repository at this address. Is its disk connected?</source>
        <translation>Unter dieser Adresse ist kein Repository. Ist der Datenträger angeschlossen?</translation>
    </message>
    <message>
        <source>The repository is locked. If no other program is using it, remove the lock that one left behind; else run this again later.</source>
        <translation>Das Repository ist gesperrt. Wenn kein anderes Programm es benutzt, entfernen Sie die Sperre, die eines hinterlassen hat; sonst starten Sie dies später noch einmal.</translation>
    </message>
    <message>
        <source>There is no space left. Make room, then run this again: earlier snapshots are whole.</source>
        <translation>Es ist kein Platz mehr da. Schaffen Sie Platz, und starten Sie dies noch einmal: Frühere Snapshots sind heil.</translation>
    </message>
    <message>
        <source>The source is not there. Is its disk connected?</source>
        <translation>Die Quelle ist nicht da. Ist der Datenträger angeschlossen?</translation>
    </message>
    <message>
        <source>The folder to restore into is not empty, so nothing was restored. Choose an empty or a new one.</source>
        <translation>Der Ordner für das Wiederhergestellte ist nicht leer, also wurde nichts wiederhergestellt. Wählen Sie einen leeren oder einen neuen.</translation>
    </message>
    <message>
        <source>The repository is damaged. Save what its disk still gives, and see in restic&apos;s manual how to repair it.</source>
        <translation>Das Repository ist beschädigt. Retten Sie, was der Datenträger noch hergibt, und lesen Sie im Handbuch von restic, wie es repariert wird.</translation>
    </message>
    <message>
        <source>restic ended before it was done. Earlier snapshots are whole; run this again.</source>
        <translation>restic endete, bevor es fertig war. Frühere Snapshots sind heil; starten Sie dies noch einmal.</translation>
    </message>
    <message>
        <source>restic failed: %1</source>
        <translation>restic ist gescheitert: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) of restic&apos;s made no sense.</source>
        <translation>
            <numerusform>%n Zeile von restic ergab keinen Sinn.</numerusform>
            <numerusform>%n Zeilen von restic ergaben keinen Sinn.</numerusform>
        </translation>
    </message>
    <message>
        <source>This restic is too old: %1. Install version 0.14 or newer of the package &quot;restic&quot;.</source>
        <translation>Dieses restic ist zu alt: %1. Installieren Sie die Version 0.14 oder eine neuere des Pakets „restic“.</translation>
    </message>
</context>
<context>
    <name>ResticRun</name>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>ThroughputPage</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Done in a second</source>
        <translation>In einer Sekunde</translation>
    </message>
    <message>
        <source>Bytes done in each second</source>
        <translation>Bytes in jeder Sekunde</translation>
    </message>
    <message>
        <source>In the last second: %1</source>
        <translation>In der letzten Sekunde: %1</translation>
    </message>
</context>
</TS>
