<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BackupRun</name>
    <message>
        <source>Verifying</source>
        <translation>Verificando</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>Restaurando</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparando</translation>
    </message>
    <message>
        <source>Backing up: %1 of %2 files, %3 of %4  %5</source>
        <translation>Copiando: %1 de %2 archivos, %3 de %4  %5</translation>
    </message>
    <message>
        <source>Snapshot %1: %2 new, %3 changed, %4 unchanged files; %5 read, %6 added.</source>
        <translation>Instantánea %1: %2 archivos nuevos, %3 cambiados, %4 sin cambios; %5 leídos, %6 añadidos.</translation>
    </message>
    <message>
        <source>All of the repository was read back: no errors.</source>
        <translation>Se releyó todo el repositorio: sin errores.</translation>
    </message>
    <message>
        <source>Restored below %1.</source>
        <translation>Restaurado en %1.</translation>
    </message>
</context>
<context>
    <name>CheckItemDelegate</name>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>Backups, by restic.</source>
        <translation>Copias de seguridad con restic.</translation>
    </message>
    <message>
        <source>Back up FOLDER.</source>
        <translation>Copiar la carpeta FOLDER.</translation>
    </message>
    <message>
        <source>A folder, or an address such as sftp:host:/path.</source>
        <translation>Una carpeta o una dirección como sftp:host:/ruta.</translation>
    </message>
    <message>
        <source>Back up the source into the target.</source>
        <translation>Copiar el origen en el destino.</translation>
    </message>
    <message>
        <source>Read all of the target back; after the backup if with --run.</source>
        <translation>Releer todo el destino; con --run, después de la copia.</translation>
    </message>
    <message>
        <source>Restore SNAPSHOT, or the &quot;latest&quot;, from the target into the folder named last, which must be empty or new.</source>
        <translation>Restaurar SNAPSHOT, o la última («latest»), del destino en la carpeta nombrada al final, que debe estar vacía o ser nueva.</translation>
    </message>
    <message>
        <source>List the snapshots in the target.</source>
        <translation>Listar las instantáneas del destino.</translation>
    </message>
    <message>
        <source>Make the repository if it is not there.</source>
        <translation>Crear el repositorio si no existe.</translation>
    </message>
    <message>
        <source>Remove a lock that a dead program left.</source>
        <translation>Quitar un bloqueo que dejó un programa terminado.</translation>
    </message>
    <message>
        <source>Write RATE KB a second at most.</source>
        <translation>Escribir como mucho RATE KB por segundo.</translation>
    </message>
    <message>
        <source>Say nothing unless something is wrong.</source>
        <translation>No decir nada si todo va bien.</translation>
    </message>
    <message>
        <source>Write pictures of the window into FOLDER.</source>
        <translation>Guardar imágenes de la ventana en FOLDER.</translation>
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
        <translation>La contraseña es la primera línea de la entrada estándar; en un terminal se pregunta por ella.
Estado de salida:
  0  hecho
  1  falló
  2  los argumentos no tienen sentido o falta algo: restic, origen, repositorio, contraseña
  3  copiado, salvo algunos archivos que no se pudieron leer
  4  la verificación encontró daños
  5  contraseña incorrecta
  6  el repositorio está bloqueado
</translation>
    </message>
    <message>
        <source>Password of the repository: </source>
        <translation>Contraseña del repositorio: </translation>
    </message>
    <message>
        <source>--init makes a repository.</source>
        <translation>--init crea un repositorio.</translation>
    </message>
    <message>
        <source>--unlock removes a dead program&apos;s lock.</source>
        <translation>--unlock quita el bloqueo de un programa que ya no existe.</translation>
    </message>
    <message>
        <source>Say --target, and --run with --source, --verify, --snapshots, or --restore with a snapshot and a folder. --help tells more.</source>
        <translation>Indique --target y, además, --run con --source, --verify, --snapshots o --restore con una instantánea y una carpeta. --help dice más.</translation>
    </message>
</context>
<context>
    <name>EditableTableView</name>
    <message>
        <source>Run</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>FileListModel</name>
    <message>
        <source>folder</source>
        <translation>carp.</translation>
    </message>
    <message>
        <source>link</source>
        <translation>enl.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>arch.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Permisos</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>&amp;Restore...</source>
        <translation>Res&amp;taurar...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>&amp;Show snapshots</source>
        <translation>Mostrar in&amp;stantáneas</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>Files in a &amp;page:</source>
        <translation>Archivos por &amp;página:</translation>
    </message>
    <message>
        <source>Empty folder to restore into</source>
        <translation>Carpeta vacía en la que restaurar</translation>
    </message>
    <message>
        <source>Restoring &quot;%1&quot; into %2</source>
        <translation>Restaurando «%1» en %2</translation>
    </message>
    <message>
        <source>Nothing was restored: there is one run at a time.</source>
        <translation>No se restauró nada: solo se hace una cosa a la vez.</translation>
    </message>
    <message>
        <source>There is no snapshot yet.</source>
        <translation>Aún no hay ninguna instantánea.</translation>
    </message>
    <message>
        <source>The backup has no repository yet.</source>
        <translation>La copia aún no tiene repositorio.</translation>
    </message>
    <message>
        <source>&quot;Show snapshots&quot; asks for the password of the repository.</source>
        <translation>«Mostrar instantáneas» pide la contraseña del repositorio.</translation>
    </message>
    <message>
        <source>Looking for snapshots...</source>
        <translation>Buscando instantáneas...</translation>
    </message>
    <message>
        <source>How many files &quot;Next&quot; adds to the list, from 10 to 10000</source>
        <translation>Cuántos archivos añade «Siguiente» a la lista, de 10 a 10000</translation>
    </message>
</context>
<context>
    <name>JobModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Repositorio</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Elegir una carpeta...</translation>
    </message>
    <message>
        <source>Verify: no</source>
        <translation>Verificar: no</translation>
    </message>
    <message>
        <source>Verify: yes</source>
        <translation>Verificar: sí</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Backups</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source> KB/s</source>
        <translation> KB/s</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>How much the next run writes to the repository in a second at most</source>
        <translation>Cuánto escribe la próxima vez en el repositorio por segundo como mucho</translation>
    </message>
    <message>
        <source>There is nothing to back up yet.

&quot;New backup&quot; adds a row. Choose the folder to back up and the repository that is to keep the backups: another folder, or any address that restic takes. Then press &quot;Run&quot;.</source>
        <translation>Aún no hay nada que copiar.

«Copia nueva» añade una fila. Elija la carpeta que se ha de copiar y el repositorio que guardará las copias: otra carpeta o cualquier dirección que restic acepte. Después pulse «Iniciar».</translation>
    </message>
    <message>
        <source>&amp;New backup</source>
        <translation>Copia &amp;nueva</translation>
    </message>
    <message>
        <source>Bandwidth &amp;limit:</source>
        <translation>&amp;Límite de velocidad:</translation>
    </message>
    <message>
        <source>New backup</source>
        <translation>Copia nueva</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not started: there is one run at a time.</source>
        <translation>«%1» no se inició: solo se hace una cosa a la vez.</translation>
    </message>
    <message>
        <source>Say first where the backups of &quot;%1&quot; are to be kept.</source>
        <translation>Indique primero dónde se guardan las copias de «%1».</translation>
    </message>
    <message>
        <source>Password of the repository %1:</source>
        <translation>Contraseña del repositorio %1:</translation>
    </message>
    <message>
        <source>Backing up &quot;%1&quot;</source>
        <translation>Copiando «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is running. Cancel it before you remove it.</source>
        <translation>«%1» está en marcha. Cancélela antes de quitarla.</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the list? Its backups stay in the repository.</source>
        <translation>¿Quitar «%1» de la lista? Sus copias se quedan en el repositorio.</translation>
    </message>
    <message>
        <source>Folder to back up</source>
        <translation>Carpeta que se ha de copiar</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>Cancelar %1</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Iniciar %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Backup</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>&amp;Backups</source>
        <translation>&amp;Copias</translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation>&amp;Archivos</translation>
    </message>
    <message>
        <source>&amp;Throughput</source>
        <translation>&amp;Rendimiento</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Hay algo en marcha. ¿Cancelarlo y cerrar la ventana?</translation>
    </message>
    <message>
        <source>The list of backups could not be saved.</source>
        <translation>No se pudo guardar la lista de copias.</translation>
    </message>
    <message>
        <source>Nothing is running.</source>
        <translation>No hay nada en marcha.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Canc&amp;elar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>What restic said</source>
        <translation>Lo que dijo restic</translation>
    </message>
    <message>
        <source>There is no repository there yet. Create one? Whoever loses its password loses the backups in it.</source>
        <translation>Allí aún no hay ningún repositorio. ¿Crear uno? Quien pierde su contraseña pierde las copias que contiene.</translation>
    </message>
    <message>
        <source>The repository is locked. Remove the lock if the program that made it is gone?</source>
        <translation>El repositorio está bloqueado. ¿Quitar el bloqueo, si el programa que lo puso ya no está?</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message>
        <source>Some files could not be read; all others are backed up.</source>
        <translation>Algunos archivos no se pudieron leer; todos los demás están copiados.</translation>
    </message>
    <message>
        <source>Cancelled. The next backup uses what was stored so far.</source>
        <translation>Cancelado. Lo ya guardado lo aprovecha la próxima copia.</translation>
    </message>
    <message>
        <source>There is no restic. Install the package &quot;restic&quot;, or say where the program is: restic=/path/of/restic at the top of %1.</source>
        <translation>No hay restic. Instale el paquete «restic» o indique dónde está el programa: restic=/ruta/de/restic al principio de %1.</translation>
    </message>
    <message>
        <source>A repository needs a password. Nothing was done.</source>
        <translation>Un repositorio necesita una contraseña. No se hizo nada.</translation>
    </message>
    <message>
        <source>This is not the repository&apos;s password. Nothing was changed; type it again.</source>
        <translation>No es la contraseña del repositorio. No se cambió nada; escríbala otra vez.</translation>
    </message>
    <message>
        <source>There is no repository at this address. Is its disk connected?</source>
        <translation>No hay ningún repositorio en esta dirección. ¿Está conectado el disco?</translation>
    </message>
    <message>
        <source>The repository is locked. If no other program is using it, remove the lock that one left behind; else run this again later.</source>
        <translation>El repositorio está bloqueado. Si ningún otro programa lo usa, quite el bloqueo que dejó alguno; si no, inténtelo más tarde.</translation>
    </message>
    <message>
        <source>There is no space left. Make room, then run this again: earlier snapshots are whole.</source>
        <translation>No queda espacio. Haga sitio e inténtelo otra vez: las instantáneas anteriores están completas.</translation>
    </message>
    <message>
        <source>The source is not there. Is its disk connected?</source>
        <translation>El origen no está. ¿Está conectado el disco?</translation>
    </message>
    <message>
        <source>The folder to restore into is not empty, so nothing was restored. Choose an empty or a new one.</source>
        <translation>La carpeta en la que restaurar no está vacía, así que no se restauró nada. Elija una vacía o una nueva.</translation>
    </message>
    <message>
        <source>The repository is damaged. Save what its disk still gives, and see in restic&apos;s manual how to repair it.</source>
        <translation>El repositorio está dañado. Salve lo que el disco aún permita y consulte en el manual de restic cómo repararlo.</translation>
    </message>
    <message>
        <source>restic ended before it was done. Earlier snapshots are whole; run this again.</source>
        <translation>restic terminó antes de acabar. Las instantáneas anteriores están completas; inténtelo otra vez.</translation>
    </message>
    <message>
        <source>restic failed: %1</source>
        <translation>restic falló: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) of restic&apos;s made no sense.</source>
        <translation>
            <numerusform>%n línea de restic no tenía sentido.</numerusform>
            <numerusform>%n líneas de restic no tenían sentido.</numerusform>
        </translation>
    </message>
    <message>
        <source>This restic is too old: %1. Install version 0.14 or newer of the package &quot;restic&quot;.</source>
        <translation>Este restic es demasiado antiguo: %1. Instale la versión 0.14 o una más nueva del paquete «restic».</translation>
    </message>
</context>
<context>
    <name>ResticRun</name>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
</context>
<context>
    <name>ThroughputPage</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Done in a second</source>
        <translation>En un segundo</translation>
    </message>
    <message>
        <source>Bytes done in each second</source>
        <translation>Bytes de cada segundo</translation>
    </message>
    <message>
        <source>In the last second: %1</source>
        <translation>En el último segundo: %1</translation>
    </message>
</context>
</TS>
