// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Pictures.h"

#include "BackupRun.h"
#include "FileListModel.h"
#include "JobModel.h"
#include "JobsTable.h"
#include "MainWindow.h"
#include "Translators.h"

#include <SpinBox.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <memory>

namespace {

const int patienceMilliseconds = 60000;
const QString password(QStringLiteral("correct horse"));

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

void writeSampleTree(const QString &folder)
{
    for (int number = 0; number < 1200; ++number) {
        const QString below = QStringLiteral("%1/letters %2").arg(folder).arg(number / 100);
        QDir().mkpath(below);
        QFile file(QStringLiteral("%1/letter %2.odt").arg(below).arg(number, 4, 10, QChar('0')));
        QVector<quint32> noise(number * 4); // which cannot be made smaller
        QRandomGenerator::global()->fillRange(noise.data(), noise.size());
        if (file.open(QIODevice::WriteOnly)) {
            file.write(reinterpret_cast<const char *>(noise.constData()), noise.size() * 4);
        }
    }
}

BackupJob job(const QString &name, const QString &source, const QString &repository, bool verify)
{
    BackupJob job;
    job.name = name;
    job.source = source;
    job.repository = repository;
    job.verify = verify;
    return job;
}

/// The window in front of the camera, with jobs of its own in a scratch folder.
class Studio
{
public:
    Studio(const QString &pictures, Translators *translators)
        : m_pictures(pictures)
        , m_translators(translators)
        , m_store(m_scratch.filePath(QStringLiteral("jobs.ini")))
    {
        const QString source = m_scratch.filePath(QStringLiteral("Documents"));
        const QString repository = m_scratch.filePath(QStringLiteral("repository"));
        writeSampleTree(source);
        m_store.save({job(QStringLiteral("Documents"), source, repository, true),
                      job(QStringLiteral("Pictures"), QStringLiteral("/home/anna/Pictures"),
                          QStringLiteral("sftp:backup.example.org:/srv/anna"), true),
                      job(QStringLiteral("Mail"), QStringLiteral("/home/anna/Mail"),
                          QStringLiteral("/media/disk/mail"), false)});
    }

    int run()
    {
        open(QLocale::English, QSize(960, 560));
        take(QStringLiteral("jobs"));
        backUp();
        takePages(QStringLiteral("finished"));
        takeErrors();
        QApplication::setPalette(darkPalette());
        takeWindow(QLocale::English, QSize(960, 560), QStringLiteral("dark"));
        QApplication::setPalette(QApplication::style()->standardPalette());
        takeWindow(QLocale::German, QSize(960, 560), QStringLiteral("german"));
        takeWindow(QLocale::Spanish, QSize(960, 560), QStringLiteral("spanish"));
        takeWindow(QLocale::German, QSize(800, 600), QStringLiteral("800x600"));
        m_scale = 2;
        takeWindow(QLocale::German, QSize(1366, 768) / m_scale, QStringLiteral("2x"));
        return m_exitStatus;
    }

private:
    void open(QLocale::Language language, const QSize &size)
    {
        m_translators->speak(QLocale(language));
        m_window.reset(new MainWindow(m_store));
        m_window->resize(size);
        m_window->show();
        m_window->activateWindow();
    }

    template <class Widget> Widget *find() const
    {
        return m_window->findChild<Widget *>();
    }

    void waitFor(const std::function<bool()> &condition)
    {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < patienceMilliseconds) {
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        m_exitStatus = condition() ? m_exitStatus : 1;
    }

    void take(const QString &name, QWidget *widget = nullptr)
    {
        QApplication::processEvents();
        widget = widget ? widget : m_window.get();
        QPixmap picture(widget->size() * m_scale);
        picture.setDevicePixelRatio(m_scale);
        widget->render(&picture);
        const QString path = QDir(m_pictures).filePath(name + QStringLiteral(".png"));
        if (!QDir().mkpath(m_pictures) || !picture.save(path)) {
            std::fprintf(stderr, "%s could not be written\n", qPrintable(path));
            m_exitStatus = 1;
        }
        std::printf("%s\n", qPrintable(path));
    }

    void takePages(const QString &name)
    {
        const QStringList pages
            = {QStringLiteral("jobs"), QStringLiteral("files"), QStringLiteral("throughput")};
        QTabWidget *tabs = find<QTabWidget>();
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            waitFor([this, page] {
                return page != 1 || find<BackupRun>()->isRunning()
                    || find<FileListModel>()->rowCount() > 1;
            });
            take(pages.at(page) + QLatin1Char('-') + name);
        }
        tabs->setCurrentIndex(0);
    }

    void takeWindow(QLocale::Language language, const QSize &size, const QString &name)
    {
        open(language, size);
        typePassword(password);
        takePages(name);
    }

    /// Types it into the first job's cell, and leaves the cell after a picture.
    void typePassword(const QString &text, const QString &picture = QString())
    {
        JobsTable *table = find<JobsTable>();
        table->editCell(0, JobModel::Password);
        if (QLineEdit *field = qobject_cast<QLineEdit *>(table->button(0, JobModel::Password))) {
            field->insert(text);
        }
        if (!picture.isEmpty()) {
            take(picture);
        }
        table->setCurrentIndex(table->model()->index(0, JobModel::Name));
    }

    void clickRun()
    {
        static_cast<QPushButton *>(find<JobsTable>()->button(0, JobModel::Run))->click();
    }

    // Slowly, so that there is something to see of it.
    void backUp()
    {
        BackupRun *run = find<BackupRun>();
        QObject::connect(run, &BackupRun::progressChanged, run,
                         [this](const BackupProgress &progress) {
                             m_fraction = progress.fraction;
                         });
        QObject::connect(run, &BackupRun::finished, run, [this](const Outcome &outcome) {
            m_exitStatus = outcome.isGood() ? m_exitStatus : 1;
        });
        find<JobsTable>()->parentWidget()->findChild<SpinBox *>()->setValue(2000);
        typePassword(password, QStringLiteral("jobs-editing"));
        clickRun();
        waitFor([] {
            return QApplication::activeModalWidget();
        });
        if (QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            take(QStringLiteral("question"), box);
            box->button(QMessageBox::Yes)->click();
        }
        waitFor([this] {
            return m_fraction > 0.6;
        });
        takePages(QStringLiteral("running"));
        waitFor([run] {
            return !run->isRunning();
        });
    }

    void takeErrors()
    {
        const QByteArray path = qgetenv("PATH");
        takeError(QStringLiteral("error-password"), QStringLiteral("wrong"));
        qputenv("PATH", "");
        takeError(QStringLiteral("error-restic"), password);
        qputenv("PATH", path);
        const QList<BackupJob> jobs = m_store.load();
        m_store.save({});
        open(QLocale::English, QSize(960, 560));
        take(QStringLiteral("jobs-empty"));
        m_store.save(jobs);
    }

    void takeError(const QString &name, const QString &typed)
    {
        open(QLocale::English, QSize(960, 560));
        typePassword(typed);
        clickRun();
        waitFor([this] {
            return !find<BackupRun>()->isRunning();
        });
        take(name);
    }

    QString m_pictures;
    Translators *m_translators;
    QTemporaryDir m_scratch;
    JobStore m_store;
    std::unique_ptr<MainWindow> m_window;
    double m_fraction = 0; ///< How much of the backup has been seen done.
    int m_scale = 1;
    int m_exitStatus = 0;
};

} // namespace

int takePictures(const QString &folder, Translators *translators)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    QApplication::setPalette(QApplication::style()->standardPalette());
    return Studio(folder, translators).run();
}
