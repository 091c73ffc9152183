// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"

#include "TreeRemover.h"

#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const int longestRunMilliseconds = 60000;

QByteArray joined(const QByteArray &folder, const QByteArray &relative)
{
    return relative.isEmpty() ? folder : folder + '/' + relative;
}

} // namespace

bool Outcome::hasProblem(const QString &path) const
{
    return !problemText(path).isEmpty();
}

QString Outcome::problemText(const QString &path) const
{
    for (const BackupProblem &problem : problems) {
        if (problem.path == path) {
            return problem.text;
        }
    }
    return QString();
}

BackupFolders::BackupFolders()
{
    PosixFile::makeFolder(source());
    job.sourceFolder = QFile::decodeName(source());
    job.targetFolder = QFile::decodeName(target());
}

BackupFolders::~BackupFolders()
{
    // Names that are no text are beyond what QTemporaryDir can remove.
    removeTree(root());
}

QByteArray BackupFolders::root() const
{
    return QFile::encodeName(m_folder.path());
}

QByteArray BackupFolders::source(const QByteArray &relative) const
{
    return joined(root() + "/source", relative);
}

QByteArray BackupFolders::target(const QByteArray &relative) const
{
    return joined(root() + "/target", relative);
}

QByteArray BackupFolders::copy(const QByteArray &relative) const
{
    return joined(root() + "/target/data", relative);
}

QByteArray BackupFolders::manifest() const
{
    return readFile(target("manifest.sha256"));
}

void BackupFolders::write(const QByteArray &relative, const QByteArray &content) const
{
    for (auto slash = relative.indexOf('/'); slash >= 0; slash = relative.indexOf('/', slash + 1)) {
        PosixFile::makeFolder(source(relative.left(slash)));
    }
    writeFile(source(relative), content);
}

Outcome BackupFolders::run() const
{
    BackupEngine engine;
    QString refusal;
    const bool isStarted = engine.start(job, &refusal);
    return outcomeOf(&engine, isStarted, refusal);
}

Outcome BackupFolders::verify() const
{
    BackupEngine engine;
    QString refusal;
    const bool isStarted = engine.startVerify(job, &refusal);
    return outcomeOf(&engine, isStarted, refusal);
}

Outcome outcomeOf(BackupEngine *engine, bool isStarted, const QString &refusal)
{
    Outcome outcome;
    outcome.refusal = refusal;
    if (!isStarted) {
        return outcome;
    }
    QEventLoop loop;
    QObject::connect(engine, &BackupEngine::problemFound, &loop,
                     [&outcome](const BackupProblem &problem) {
                         outcome.problems << problem;
                     });
    QObject::connect(engine, &BackupEngine::fileDone, &loop,
                     [&outcome](const QString &path, FileResult result) {
                         outcome.files.insert(path, result);
                     });
    QObject::connect(engine, &BackupEngine::finished, &loop,
                     [&outcome, &loop](const BackupSummary &summary) {
                         outcome.summary = summary;
                         outcome.hasFinished = true;
                         loop.quit();
                     });
    QTimer::singleShot(longestRunMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    return outcome;
}

void writeFile(const QByteArray &path, const QByteArray &content)
{
    QFile file;
    const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
    QVERIFY(file.open(::open(path.constData(), flags, 0644), QIODevice::WriteOnly,
                      QFileDevice::AutoCloseHandle));
    file.write(content);
}

QByteArray readFile(const QByteArray &path)
{
    QFile file;
    return PosixFile::openForReading(path, &file) == 0 ? file.readAll() : QByteArray();
}

bool exists(const QByteArray &path)
{
    return stateOf(path).kind != FileState::Absent;
}

FileState stateOf(const QByteArray &path)
{
    FileState state;
    PosixFile::state(path, &state);
    return state;
}

quint64 inodeOf(const QByteArray &path)
{
    struct stat status;
    return ::lstat(path.constData(), &status) == 0 ? status.st_ino : 0;
}

void setTime(const QByteArray &path, qint64 seconds, qint64 nanoseconds)
{
    FileState state;
    state.seconds = seconds;
    state.nanoseconds = nanoseconds;
    PosixFile::setTime(path, state);
}

QByteArray linkText(const QByteArray &path)
{
    QByteArray text;
    PosixFile::readLink(path, &text);
    return text;
}

QList<QByteArray> namesIn(const QByteArray &path)
{
    FolderReader reader(path);
    QList<QByteArray> names;
    QByteArray name;
    while (reader.next(&name)) {
        names << name;
    }
    std::sort(names.begin(), names.end());
    return names;
}

void removeTree(const QByteArray &path)
{
    TreeRemover remover(path);
    while (remover.step()) { }
}

bool isSuperuser()
{
    return ::geteuid() == 0;
}

int runProgram(const QString &program, const QStringList &arguments,
               const QByteArray &workingFolder, QByteArray *output)
{
    QProcess process;
    process.setWorkingDirectory(QFile::decodeName(workingFolder));
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(longestRunMilliseconds)
        || process.exitStatus() != QProcess::NormalExit) {
        return -1;
    }
    if (output) {
        *output = process.readAll();
    }
    return process.exitCode();
}

bool manifestIsAccepted(const BackupFolders &folders)
{
    const QStringList arguments{QStringLiteral("--check"), QStringLiteral("--strict"),
                                QStringLiteral("manifest.sha256")};
    return runProgram(QStringLiteral("sha256sum"), arguments, folders.target()) == 0;
}
