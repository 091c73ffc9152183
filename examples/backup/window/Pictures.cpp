// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Pictures.h"

#include "BackupRun.h"
#include "FileListModel.h"
#include "JobModel.h"
#include "JobsPage.h"
#include "MainWindow.h"

#include <EditableTableView.h>
#include <SpinBox.h>

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

namespace {

void writeSampleTree(const QString &folder)
{
    QDir().mkpath(folder);
    for (int number = 0; number < 1200; ++number) {
        QFile file(QString("%1/letter %2.odt").arg(folder).arg(number, 4, 10, QChar('0')));
        QVector<quint32> noise(number * 4); // which cannot be made smaller
        QRandomGenerator::global()->fillRange(noise.data(), noise.size());
        if (file.open(QIODevice::WriteOnly)) {
            file.write(reinterpret_cast<const char *>(noise.constData()), noise.size() * 4);
        }
    }
}

/// The window in front of the camera, with jobs of its own in a scratch folder.
class Studio
{
public:
    explicit Studio(const QString &pictures)
        : m_pictures(pictures)
        , m_window(JobStore(m_scratch.filePath("jobs.ini")))
        , m_jobs(m_window.findChild<JobModel *>())
        , m_run(m_window.findChild<BackupRun *>())
    {
        const QStringList size
            = qEnvironmentVariable("TESSALINE_PICTURES_SIZE", "960x560").split('x');
        m_window.resize(size.first().toInt(), size.last().toInt());
        m_window.show();
    }

    int run()
    {
        QDir().mkpath(m_pictures);
        take("jobs-empty", &m_window);
        addJobs();
        takeBackup();
        runJob("wrong");
        take("error-password", &m_window);
        qputenv("PATH", "");
        runJob("correct horse");
        take("error-restic", &m_window);
        return m_exitStatus;
    }

private:
    void addJobs()
    {
        BackupJob job;
        job.name = "Documents";
        job.source = m_scratch.filePath(job.name);
        job.repository = m_scratch.filePath("repository");
        job.verify = true;
        writeSampleTree(job.source);
        m_jobs->appendJob(job);
        job.name = "Pictures";
        job.source = "/home/anna/Pictures";
        job.repository = "sftp:backup.example.org:/srv/anna";
        m_jobs->appendJob(job);
    }

    // Slowly, so that there is something to see of it.
    void takeBackup()
    {
        m_window.findChild<JobsPage *>()->findChild<SpinBox *>()->setValue(2000);
        QObject::connect(
            m_run, &BackupRun::asked, &m_window,
            [this] {
                QMessageBox *question = m_window.findChild<QMessageBox *>();
                take("question", question);
                question->button(QMessageBox::Yes)->click();
                takeRunning();
            },
            Qt::QueuedConnection);
        runJob("correct horse");
        takePages("finished");
    }

    void takeRunning()
    {
        const bool isSeen = m_run->bytesDone() > 0; // the chart has a value a second
        QTimer::singleShot(1200, &m_window, [this, isSeen] {
            isSeen ? takePages("running") : takeRunning();
        });
    }

    void runJob(const QString &password)
    {
        const QModelIndex cell = m_jobs->index(0, JobModel::Password);
        m_jobs->setData(cell, password, Qt::UserRole + 1);
        m_jobs->setData(cell, QString(password.size(), '*'));
        QWidget *run = m_window.findChild<EditableTableView *>()->button(0, JobModel::Run);
        QMetaObject::invokeMethod(run, "click");
        waitFor(m_run, SIGNAL(finished(Outcome)));
    }

    void waitFor(const QObject *sender, const char *signal)
    {
        QEventLoop loop;
        QObject::connect(sender, signal, &loop, SLOT(quit()));
        QTimer::singleShot(60000, &loop, [&loop] {
            loop.exit(1);
        });
        m_exitStatus |= loop.exec();
    }

    void takePages(const QString &state)
    {
        const QStringList names = {"jobs-", "files-", "throughput-"};
        QTabWidget *tabs = m_window.findChild<QTabWidget *>();
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            // A page of no snapshot comes first, while snapshots are looked for.
            for (int pages = 0; page == 1 && !m_run->isRunning() && pages < 2; ++pages) {
                waitFor(m_window.findChild<FileListModel *>(), SIGNAL(pageLoaded(qint64,bool)));
            }
            take(names[page] + state, &m_window);
        }
        tabs->setCurrentIndex(0);
    }

    void take(const QString &name, QWidget *widget)
    {
        QApplication::processEvents();
        m_exitStatus |= widget->grab().save(QDir(m_pictures).filePath(name + ".png")) ? 0 : 1;
    }

    QString m_pictures;
    QTemporaryDir m_scratch;
    MainWindow m_window;
    JobModel *m_jobs;
    BackupRun *m_run;
    int m_exitStatus = 0;
};

} // namespace

int takePictures(const QString &folder)
{
    QApplication::setStyle("Fusion");
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QPalette palette = QApplication::style()->standardPalette();
    if (qEnvironmentVariableIsSet("TESSALINE_PICTURES_DARK")) {
        palette = QPalette(QColor(53, 53, 53));
        palette.setColor(QPalette::Base, QColor(35, 35, 35));
    }
    QApplication::setPalette(palette);
    return Studio(folder).run();
}
