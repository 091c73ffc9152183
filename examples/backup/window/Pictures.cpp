// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Pictures.h"

#include "BackupRun.h"
#include "FileListModel.h"
#include "JobModel.h"
#include "MainWindow.h"
#include "Translators.h"

#include <EditableTableView.h>
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

const QLatin1String password("correct horse");
const QSize usualSize(960, 560);

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

BackupJob job(const QString &name, const QString &source, const QString &repository)
{
    BackupJob job;
    job.name = name;
    job.source = source;
    job.repository = repository;
    job.verify = true;
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
        writeSampleTree(source);
        m_store.save({job(QStringLiteral("Documents"), source,
                          m_scratch.filePath(QStringLiteral("repository"))),
                      job(QStringLiteral("Pictures"), QStringLiteral("/home/anna/Pictures"),
                          QStringLiteral("sftp:backup.example.org:/srv/anna"))});
    }

    int run()
    {
        takeBackup();
        takeErrors();
        QPalette dark(QColor(53, 53, 53));
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        QApplication::setPalette(dark);
        takePages(QStringLiteral("dark"), QLocale::English, usualSize);
        QApplication::setPalette(QApplication::style()->standardPalette());
        takePages(QStringLiteral("german"), QLocale::German, usualSize);
        takePages(QStringLiteral("spanish"), QLocale::Spanish, usualSize);
        takePages(QStringLiteral("800x600"), QLocale::German, QSize(800, 600));
        m_scale = 2;
        takePages(QStringLiteral("2x"), QLocale::German, QSize(1366, 768) / m_scale);
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
        while (!condition() && timer.elapsed() < 60000) {
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        m_exitStatus = condition() ? m_exitStatus : 1;
    }

    void take(const QString &name, QWidget *widget)
    {
        QApplication::processEvents();
        QPixmap picture(widget->size() * m_scale);
        picture.setDevicePixelRatio(m_scale);
        widget->render(&picture);
        const QString path = QDir(m_pictures).filePath(name + QStringLiteral(".png"));
        const bool isWritten = QDir().mkpath(m_pictures) && picture.save(path);
        std::printf("%s%s\n", qPrintable(path), isWritten ? "" : " could not be written");
        m_exitStatus = isWritten ? m_exitStatus : 1;
    }

    void takePages(const QString &name)
    {
        const QStringList pages
            = {QStringLiteral("jobs-"), QStringLiteral("files-"), QStringLiteral("throughput-")};
        QTabWidget *tabs = find<QTabWidget>();
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            waitFor([this, page] {
                return page != 1 || find<BackupRun>()->isRunning()
                    || find<FileListModel>()->rowCount() > 1;
            });
            take(pages.at(page) + name, m_window.get());
        }
        tabs->setCurrentIndex(0);
    }

    void takePages(const QString &name, QLocale::Language language, const QSize &size)
    {
        open(language, size);
        typePassword(password);
        takePages(name);
    }

    void typePassword(const QString &text)
    {
        EditableTableView *table = find<EditableTableView>();
        table->setCurrentIndex(table->model()->index(0, JobModel::Password));
        table->edit(table->currentIndex());
        table->findChild<QLineEdit *>()->insert(text);
        table->setCurrentIndex(table->model()->index(0, JobModel::Name));
    }

    void clickRun()
    {
        QMetaObject::invokeMethod(find<EditableTableView>()->button(0, JobModel::Run), "click");
    }

    // Slowly, so that there is something to see of it.
    void takeBackup()
    {
        open(QLocale::English, usualSize);
        typePassword(password);
        find<EditableTableView>()->parentWidget()->findChild<SpinBox *>()->setValue(2000);
        clickRun();
        waitFor([] {
            return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        });
        if (QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            take(QStringLiteral("question"), box);
            box->button(QMessageBox::Yes)->click();
        }
        waitFor([this] {
            return find<BackupRun>()->bytesDone() > 0;
        });
        QElapsedTimer timer; // the chart has a value a second
        timer.start();
        waitFor([&timer] {
            return timer.elapsed() > 1200;
        });
        takePages(QStringLiteral("running"));
        waitForEnd();
        takePages(QStringLiteral("finished"));
    }

    void takeErrors()
    {
        takeError(QStringLiteral("error-password"), QStringLiteral("wrong"));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "");
        takeError(QStringLiteral("error-restic"), password);
        qputenv("PATH", path);
        const QList<BackupJob> jobs = m_store.load();
        m_store.save({});
        open(QLocale::English, usualSize);
        take(QStringLiteral("jobs-empty"), m_window.get());
        m_store.save(jobs);
    }

    void takeError(const QString &name, const QString &typed)
    {
        open(QLocale::English, usualSize);
        typePassword(typed);
        clickRun();
        waitForEnd();
        take(name, m_window.get());
    }

    void waitForEnd()
    {
        waitFor([this] {
            return !find<BackupRun>()->isRunning();
        });
    }

    QString m_pictures;
    Translators *m_translators;
    QTemporaryDir m_scratch;
    JobStore m_store;
    std::unique_ptr<MainWindow> m_window;
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
