// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Pictures.h"

#include "BackupEngine.h"
#include "CommandLine.h"
#include "FileListModel.h"
#include "FilesPage.h"
#include "JobModel.h"
#include "JobsPage.h"
#include "MainWindow.h"

#include <EditableTableView.h>
#include <FileListTableView.h>
#include <SpinBox.h>

#include <QApplication>
#include <QColor>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

const int sampleFiles = 12000;

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

void writeSampleTree(const QString &folder)
{
    for (int number = 0; number < sampleFiles; ++number) {
        const QString name = QStringLiteral("letters/%1/letter-%2.txt")
                                 .arg(number / 1000)
                                 .arg(number, 5, 10, QLatin1Char('0'));
        const QString path = QDir(folder).filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(QByteArray(1000 + number % 5000, 'x'));
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
class Studio : public QObject
{
    Q_OBJECT

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
        m_window.reset(new MainWindow(m_store));
        m_window->show();
        m_window->activateWindow();
        take(QStringLiteral("jobs"));
        typePassphrase();
        backUp();
        takeAllPages(QStringLiteral("finished"));
        QApplication::setPalette(darkPalette());
        takeAllPages(QStringLiteral("dark"));
        return m_exitStatus;
    }

private slots:
    /// Goes on with the list, page by page to its end, while the backup runs.
    void listOn()
    {
        FilesPage *page = m_window->filesPage();
        if (!m_isListed && page->model()->rowCount() > 1) {
            page->list()->StartLoadingData();
        }
    }

    void watch(const BackupProgress &progress)
    {
        if (m_isHalfway || progress.phase != BackupPhase::Copying
            || progress.filesDone * 2 < progress.filesTotal) {
            return;
        }
        m_isHalfway = true;
        takeAllPages(QStringLiteral("running"));
        m_window->jobsPage()->bandwidthLimit()->setValue(0);
    }

    void endListing(qint64, bool completed)
    {
        m_isListed = completed;
        QMetaObject::invokeMethod(this, "listOn", Qt::QueuedConnection);
        stopWhenDone();
    }

    void endBackup(const BackupSummary &summary)
    {
        m_exitStatus = summary.isComplete() ? m_exitStatus : 1;
        m_isBackedUp = true;
        stopWhenDone();
    }

private:
    void stopWhenDone()
    {
        if (m_isListed && m_isBackedUp) {
            m_loop.quit();
        }
    }

    void take(const QString &name)
    {
        QApplication::processEvents();
        const QString path = QDir(m_pictures).filePath(name + QStringLiteral(".png"));
        if (!QDir().mkpath(m_pictures) || !m_window->grab().save(path)) {
            std::fprintf(stderr, "%s could not be written\n", qPrintable(path));
            m_exitStatus = 1;
            return;
        }
        std::printf("%s\n", qPrintable(path));
    }

    void takeAllPages(const QString &name)
    {
        const QStringList pages
            = {QStringLiteral("jobs"), QStringLiteral("files"), QStringLiteral("throughput")};
        const int shown = m_window->pages()->currentIndex();
        for (int page = 0; page < m_window->pages()->count(); ++page) {
            m_window->pages()->setCurrentIndex(page);
            take(pages.at(page) + QLatin1Char('-') + name);
        }
        m_window->pages()->setCurrentIndex(shown);
    }

    void typePassphrase()
    {
        EditableTableView *table = m_window->jobsPage()->table();
        const QModelIndex cell = m_window->jobsPage()->jobs()->index(0, JobModel::Passphrase);
        table->setCurrentIndex(cell);
        table->edit(cell);
        if (QLineEdit *field = qobject_cast<QLineEdit *>(table->indexWidget(cell))) {
            field->insert(QStringLiteral("correct horse"));
        }
        take(QStringLiteral("jobs-editing"));
        table->setCurrentIndex(cell.sibling(0, JobModel::Name));
    }

    // Slowly at first, so that the chart has something to show, and all of it in the end.
    void backUp()
    {
        JobsPage *page = m_window->jobsPage();
        connect(page->engine(), &BackupEngine::progressChanged, this, &Studio::watch);
        connect(page->engine(), &BackupEngine::finished, this, &Studio::endBackup);
        connect(m_window->filesPage()->model(), &FileListModel::pageLoaded, this,
                &Studio::endListing);
        page->bandwidthLimit()->setValue(4);
        static_cast<QPushButton *>(page->table()->button(0, JobModel::Run))->click();
        if (!page->engine()->isRunning()) {
            m_exitStatus = 1;
            return;
        }
        m_window->pages()->setCurrentWidget(m_window->filesPage());
        m_loop.exec();
    }

    QString m_pictures;
    QTemporaryDir m_scratch;
    JobStore m_store;
    std::unique_ptr<MainWindow> m_window;
    QEventLoop m_loop;
    bool m_isHalfway = false;
    bool m_isListed = false;
    bool m_isBackedUp = false;
    int m_exitStatus = 0;
};

} // namespace

int takePictures(const CommandLine &commandLine)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    QApplication::setPalette(QApplication::style()->standardPalette());
    return Studio(commandLine).run();
}

#include "Pictures.moc"
