// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Pictures.h"

#include "BackupEngine.h"
#include "CommandLine.h"
#include "JobModel.h"
#include "JobsPage.h"
#include "MainWindow.h"

#include <EditableTableView.h>

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// The same look on every machine.
void chooseLook()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
}

void writeSampleTree(const QString &folder)
{
    for (int number = 0; number < 1200; ++number) {
        const QString name = QStringLiteral("letters/%1/letter-%2.txt")
                                 .arg(number / 100)
                                 .arg(number, 4, 10, QLatin1Char('0'));
        const QString path = QDir(folder).filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(QByteArray(1000 + number, 'x'));
        }
    }
}

BackupJob job(const QString &name, const QString &source, const QString &target, bool verifies)
{
    BackupJob job;
    job.name = name;
    job.sourceFolder = source;
    job.targetFolder = target;
    job.verifiesAfterRun = verifies;
    return job;
}

/// The window in front of the camera, with jobs of its own in a scratch folder.
class Studio
{
public:
    explicit Studio(const CommandLine &commandLine)
        : m_pictures(commandLine.picturesFolder)
        , m_store(m_scratch.filePath(QStringLiteral("jobs.ini")))
    {
        QString source = commandLine.sourceFolder;
        QString target = commandLine.targetFolder;
        if (source.isEmpty() || target.isEmpty()) {
            source = m_scratch.filePath(QStringLiteral("Documents"));
            target = m_scratch.filePath(QStringLiteral("backup"));
            writeSampleTree(source);
        }
        m_store.save({job(QStringLiteral("Documents"), source, target, true),
                      job(QStringLiteral("Pictures"), QStringLiteral("/home/anna/Pictures"),
                          QStringLiteral("/media/disk/pictures"), true),
                      job(QStringLiteral("Mail"), QStringLiteral("/home/anna/Mail"),
                          QStringLiteral("/media/disk/mail"), false)});
    }

    int run()
    {
        MainWindow window(m_store);
        window.show();
        QApplication::setActiveWindow(&window);
        take(&window, QStringLiteral("jobs"));
        typePassphrase(&window);
        backUp(&window);
        return m_exitStatus;
    }

private:
    void take(QWidget *window, const QString &name)
    {
        QApplication::processEvents();
        const QString path = QDir(m_pictures).filePath(name + QStringLiteral(".png"));
        if (!QDir().mkpath(m_pictures) || !window->grab().save(path)) {
            std::fprintf(stderr, "%s could not be written\n", qPrintable(path));
            m_exitStatus = 1;
            return;
        }
        std::printf("%s\n", qPrintable(path));
    }

    void typePassphrase(MainWindow *window)
    {
        EditableTableView *table = window->jobsPage()->table();
        const QModelIndex cell = window->jobsPage()->jobs()->index(0, JobModel::Passphrase);
        table->setCurrentIndex(cell);
        table->edit(cell);
        if (QLineEdit *field = qobject_cast<QLineEdit *>(table->indexWidget(cell))) {
            field->insert(QStringLiteral("correct horse"));
        }
        take(window, QStringLiteral("editing"));
        table->setCurrentIndex(cell.sibling(0, JobModel::Name));
    }

    void backUp(MainWindow *window)
    {
        JobsPage *page = window->jobsPage();
        BackupSummary summary;
        QEventLoop loop;
        bool isHalfway = false;
        QObject::connect(page->engine(), &BackupEngine::progressChanged, &loop,
                         [&](const BackupProgress &progress) {
                             if (!isHalfway && progress.phase == BackupPhase::Copying
                                 && progress.filesDone * 2 > progress.filesTotal) {
                                 isHalfway = true;
                                 take(window, QStringLiteral("running"));
                             }
                         });
        QObject::connect(page->engine(), &BackupEngine::finished, &loop,
                         [&](const BackupSummary &result) {
                             summary = result;
                             loop.quit();
                         });
        static_cast<QPushButton *>(page->table()->button(0, JobModel::Run))->click();
        if (page->engine()->isRunning()) {
            loop.exec();
        }
        take(window, QStringLiteral("finished"));
        if (summary.newFiles + summary.changedFiles + summary.unchangedFiles == 0
            || !summary.isComplete()) {
            m_exitStatus = 1;
        }
    }

    QString m_pictures;
    QTemporaryDir m_scratch;
    JobStore m_store;
    int m_exitStatus = 0;
};

} // namespace

int takePictures(const CommandLine &commandLine)
{
    chooseLook();
    return Studio(commandLine).run();
}
