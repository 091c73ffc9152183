// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ResticTestTools.h"

#include "JobStore.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace {

QString text(const QByteArray &path)
{
    return QFile::decodeName(path);
}

QString foundRestic()
{
    const QString wanted = qEnvironmentVariable("TESSALINE_RESTIC");
    const QString program
        = wanted.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("restic")) : wanted;
    QProcess process;
    process.start(program, {QStringLiteral("version")});
    process.waitForFinished();
    const QString version = QString::fromUtf8(process.readAllStandardOutput());
    return Restic::isNewEnough(version) ? program : QString();
}

void setTime(const QByteArray &path, long seconds, long nanoseconds)
{
    const struct timespec times[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    ::utimensat(AT_FDCWD, path.constData(), times, AT_SYMLINK_NOFOLLOW);
}

QList<QByteArray> namesIn(const QByteArray &folder)
{
    QList<QByteArray> names;
    DIR *stream = ::opendir(folder.constData());
    while (const dirent *entry = stream ? ::readdir(stream) : nullptr) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..") {
            names.append(name);
        }
    }
    if (stream) {
        ::closedir(stream);
    }
    std::sort(names.begin(), names.end());
    return names;
}

QByteArray linkTarget(const QByteArray &path)
{
    char target[4096];
    const auto length = ::readlink(path.constData(), target, sizeof target);
    return length < 0 ? QByteArray() : QByteArray(target, int(length));
}

QByteArray entryDescription(const QByteArray &path, const QByteArray &name)
{
    struct stat state = {};
    ::lstat(path.constData(), &state);
    QByteArray line = name.toPercentEncoding() + ' ' + QByteArray::number(state.st_mode, 8) + ' '
        + QByteArray::number(qint64(state.st_mtim.tv_sec)) + '.'
        + QByteArray::number(qint64(state.st_mtim.tv_nsec)) + ' ';
    if (S_ISLNK(state.st_mode)) {
        line += linkTarget(path).toPercentEncoding();
    } else if (S_ISREG(state.st_mode)) {
        line += QCryptographicHash::hash(readFile(path), QCryptographicHash::Sha1).toHex();
    }
    return line + '\n';
}

QByteArray descriptionBelow(const QByteArray &folder, const QByteArray &prefix)
{
    QByteArray result;
    const QList<QByteArray> names = namesIn(folder);
    for (const QByteArray &name : names) {
        const QByteArray path = folder + '/' + name;
        result += entryDescription(path, prefix + name);
        struct stat state = {};
        if (::lstat(path.constData(), &state) == 0 && S_ISDIR(state.st_mode)) {
            result += descriptionBelow(path, prefix + name + '/');
        }
    }
    return result;
}

} // namespace

Sandbox::Sandbox()
{
    qputenv("XDG_CONFIG_HOME", path("settings"));
    qputenv("RESTIC_CACHE_DIR", path("cache"));
    job.name = QStringLiteral("Test");
    job.source = text(path("source"));
    job.repository = text(path("repository"));
    job.password = QStringLiteral("correct horse");
    QDir().mkpath(job.source);
    if (!qEnvironmentVariableIsEmpty("TESSALINE_RESTIC")) {
        useProgram(qEnvironmentVariable("TESSALINE_RESTIC"));
    }
}

Sandbox::~Sandbox()
{
    // Qt's own removal knows no names that are no text.
    m_folder.setAutoRemove(false);
    QProcess::execute(QStringLiteral("rm"), {QStringLiteral("-rf"), m_folder.path()});
}

QByteArray Sandbox::path(const QByteArray &relative) const
{
    return QFile::encodeName(m_folder.path()) + '/' + relative;
}

QByteArray Sandbox::source(const QByteArray &relative) const
{
    return path("source") + (relative.isEmpty() ? QByteArray() : '/' + relative);
}

QByteArray Sandbox::repository() const
{
    return QFile::encodeName(job.repository);
}

void Sandbox::write(const QByteArray &relative, const QByteArray &content) const
{
    const QByteArray file = source(relative);
    QDir().mkpath(text(file.left(file.lastIndexOf('/'))));
    writeFile(file, content);
}

void Sandbox::fillSource(int files, int bytesEach) const
{
    quint32 state = 12345;
    for (int number = 0; number < files; ++number) {
        QByteArray content(bytesEach, Qt::Uninitialized);
        for (char &byte : content) {
            state = state * 1664525U + 1013904223U;
            byte = char(state >> 24);
        }
        write("filler/" + QByteArray::number(number), content);
    }
}

Record Sandbox::backUp(bool yes) const
{
    BackupRun run;
    run.backUp(job);
    return recordOf(&run, yes);
}

Record Sandbox::verify(bool yes) const
{
    BackupRun run;
    run.verify(job);
    return recordOf(&run, yes);
}

Record Sandbox::restore(const QString &folder, const QString &snapshot) const
{
    BackupRun run;
    run.restore(job, snapshot, folder);
    return recordOf(&run);
}

QByteArray Sandbox::restic(const QStringList &arguments, int *exitStatus) const
{
    QProcess process;
    process.setProcessEnvironment(Restic::environment(job.repository));
    process.start(realRestic(), arguments);
    process.write(job.password.toUtf8() + '\n');
    process.closeWriteChannel();
    process.waitForFinished(-1);
    if (exitStatus) {
        *exitStatus = process.exitCode();
    }
    return process.readAllStandardOutput();
}

bool Sandbox::isSound() const
{
    int status = -1;
    restic({QStringLiteral("unlock")}, &status);
    const QByteArray output
        = restic({QStringLiteral("check"), QStringLiteral("--read-data")}, &status);
    if (status != 0) {
        qDebug("%s", output.constData());
    }
    return status == 0;
}

int Sandbox::snapshotCount() const
{
    return int(
        restic({QStringLiteral("snapshots"), QStringLiteral("--json")}).count("\"short_id\""));
}

bool Sandbox::isLocked() const
{
    const QStringList names(QString(64, QLatin1Char('?')));
    return !QDir(job.repository + QStringLiteral("/locks")).entryList(names).isEmpty();
}

void Sandbox::leaveExclusiveLock() const
{
    fillSource(40, 1000000);
    backUp();
    QProcess check;
    check.setProcessEnvironment(Restic::environment(job.repository));
    check.start(realRestic(), {QStringLiteral("check"), QStringLiteral("--read-data")});
    check.write(job.password.toUtf8() + '\n');
    check.closeWriteChannel();
    QTRY_VERIFY_WITH_TIMEOUT(isLocked(), 30000);
    check.kill();
    check.waitForFinished();
    QVERIFY(isLocked());
}

void Sandbox::useProgram(const QString &program) const
{
    QSettings(JobStore::defaultFilePath(), QSettings::IniFormat)
        .setValue(QStringLiteral("restic"), program);
}

void record(BackupRun *run, Record *record, bool yes)
{
    QObject::connect(run, &BackupRun::asked, [=](BackupRun::Question question) {
        record->questions.append(question);
        run->answer(yes);
    });
    QObject::connect(run, &BackupRun::progressChanged, [=](const BackupProgress &progress) {
        record->progress.append(progress.text());
    });
    QObject::connect(run, &BackupRun::problemFound, [=](const QString &problem) {
        record->problems.append(problem);
    });
    QObject::connect(run, &BackupRun::finished, [=](const Outcome &outcome) {
        record->outcome = outcome;
        record->hasFinished = true;
    });
}

Record recordOf(BackupRun *run, bool yes)
{
    Record result;
    record(run, &result, yes);
    QEventLoop loop;
    QObject::connect(run, &BackupRun::finished, &loop, &QEventLoop::quit);
    if (run->isRunning()) {
        loop.exec();
    }
    run->disconnect();
    return result;
}

QString realRestic()
{
    static const QString program = foundRestic();
    return program;
}

QString fakeRestic()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/fakerestic");
}

QByteArray allProcesses()
{
    QByteArray result;
    const QStringList ids = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &id : ids) {
        result += readFile("/proc/" + id.toLatin1() + "/cmdline") + '\n';
        result += readFile("/proc/" + id.toLatin1() + "/environ") + '\n';
    }
    return result;
}

QByteArray readFile(const QByteArray &path)
{
    // Through the system's own calls: the path may be no text.
    QByteArray content;
    QFile file;
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0 && file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        content = file.readAll();
    }
    return content;
}

void writeFile(const QByteArray &path, const QByteArray &content)
{
    QFile file;
    const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    QVERIFY2(descriptor >= 0, path.constData());
    QVERIFY(file.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void damage(const QByteArray &repository, const QByteArray &kind)
{
    QFileInfo largest;
    QDirIterator files(text(repository + '/' + kind), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        largest = files.fileInfo().size() > largest.size() ? files.fileInfo() : largest;
    }
    QFile file(largest.filePath());
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(file.open(QIODevice::ReadWrite));
    char byte = 0;
    const qint64 middle = file.size() / 2;
    QVERIFY(file.seek(middle) && file.getChar(&byte) && file.seek(middle));
    QVERIFY(file.putChar(char(byte ^ 1)));
}

void makeOddTree(const QByteArray &folder)
{
    const QByteArray names[] = {"plain",
                                "two\nlines",
                                "\xff\xfe not text",
                                QByteArray(255, 'x'),
                                " spaces ",
                                "-dash",
                                "quote\"'\\",
                                "tab\tbell\a",
                                "\xc3\xa4\xc3\xb6\xe2\x82\xac",
                                "*?[glob]",
                                "{\"json\":1}"};
    long seconds = 1000000000;
    for (const QByteArray &name : names) {
        writeFile(folder + '/' + name, "content of " + name);
        setTime(folder + '/' + name, seconds += 86400, 123456789);
    }
    for (const mode_t mode : {0400, 0600, 0644, 0755, 04755, 02755, 0777}) {
        const QByteArray file = folder + "/mode" + QByteArray::number(int(mode), 8);
        writeFile(file, "mode");
        ::chmod(file.constData(), mode);
    }
    writeFile(folder + "/empty", QByteArray());
    ::symlink("plain", (folder + "/link").constData());
    ::symlink("no\nwhere", (folder + "/dangling").constData());
    ::symlink("/", (folder + "/outside").constData());
    setTime(folder + "/dangling", 1100000000, 5);
    ::link((folder + "/plain").constData(), (folder + "/second name").constData());
    ::mkfifo((folder + "/pipe").constData(), 0640);
    QByteArray deep = folder;
    for (int level = 0; level < 40; ++level) {
        deep += "/" + QByteArray(80, char('a' + level % 26));
        ::mkdir(deep.constData(), 0755);
    }
    writeFile(deep + "/bottom", "deep");
    ::mkdir((folder + "/empty folder").constData(), 0700);
    setTime(folder + "/empty folder", 1200000000, 999999999);
    setTime(folder, 1300000000, 1);
}

QByteArray description(const QByteArray &folder)
{
    return entryDescription(folder, ".") + descriptionBelow(folder, QByteArray());
}
