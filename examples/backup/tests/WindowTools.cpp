// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WindowTools.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QtTest>

namespace {

BackupJob job(const QString &name, const QString &source, const QString &repository)
{
    BackupJob job;
    job.name = name;
    job.source = source;
    job.repository = repository;
    return job;
}

} // namespace

Window::Window()
{
    write(QStringLiteral("letters/a"), "first");
    write(QStringLiteral("letters/b/c"), "second");
    QVector<quint32> noise(2000000);
    QRandomGenerator::global()->fillRange(noise.data(), noise.size());
    write(QStringLiteral("numbers/noise"),
          QByteArray(reinterpret_cast<const char *>(noise.constData()), int(noise.size() * 4)));
    const JobStore store(path(QStringLiteral("jobs.ini")));
    store.save({job(QStringLiteral("Letters"), path(QStringLiteral("letters")), repository()),
                job(QStringLiteral("Numbers"), path(QStringLiteral("numbers")), repository())});
    m_window.reset(new MainWindow(store));
    m_window->show();
    m_window->activateWindow();
    if (!QTest::qWaitForWindowActive(m_window.get())) {
        qFatal("The window was not activated.");
    }
}

EditableTableView *Window::table() const
{
    return find<EditableTableView>();
}

JobModel *Window::jobs() const
{
    return find<JobModel>();
}

BackupRun *Window::run() const
{
    return find<BackupRun>();
}

QPushButton *Window::runButton(int row) const
{
    return qobject_cast<QPushButton *>(table()->button(row, JobModel::Run));
}

SpinBox *Window::spinBox() const
{
    return find<QTabWidget>()->currentWidget()->findChild<SpinBox *>();
}

QStringList Window::listedNames() const
{
    const FileListModel *model = find<FileListModel>();
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row) {
        names.append(QFileInfo(model->index(row, 0).data().toString()).fileName());
    }
    return names;
}

QString Window::path(const QString &relative) const
{
    return QFile::decodeName(sandbox.path(QFile::encodeName(relative)));
}

QString Window::repository() const
{
    return path(QStringLiteral("repository"));
}

void Window::write(const QString &relative, const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(path(relative)).path());
    QFile file(path(relative));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written.", qPrintable(file.fileName()));
    }
}

QByteArray Window::storedBytes() const
{
    QFile file(path(QStringLiteral("jobs.ini")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Window::showPage(int page) const
{
    find<QTabWidget>()->setCurrentIndex(page);
}

QWidget *Window::edit(int row, int column) const
{
    const QModelIndex cell = jobs()->index(row, column);
    table()->setFocus();
    table()->setCurrentIndex(cell);
    QTest::keyClick(table(), Qt::Key_F2);
    return table()->indexWidget(cell);
}

void Window::typePassword(int row, const QString &password) const
{
    QWidget *field = edit(row, JobModel::Password);
    QTest::keyClicks(field, password);
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(jobs()->job(row).password, password);
}

void Window::click(int row, int column) const
{
    QTest::mouseClick(table()->button(row, column), Qt::LeftButton);
}

bool Window::shows(const QString &text) const
{
    const QList<QLabel *> labels = m_window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible() && label->text().contains(text)) {
            return true;
        }
    }
    return false;
}

void Window::backUp(int row) const
{
    typePassword(row, QStringLiteral("secret"));
    QSignalSpy finished(run(), &BackupRun::finished);
    if (!QFile::exists(path(QStringLiteral("repository/config")))) {
        answerNextQuestion(QMessageBox::Yes);
    }
    click(row, JobModel::Run);
    QTRY_COMPARE_WITH_TIMEOUT(int(finished.count()), 1, 60000);
    QVERIFY(finished.at(0).at(0).value<Outcome>().isGood());
}

void Window::startLongRun() const
{
    typePassword(1, QStringLiteral("secret"));
    spinBox()->setValue(50);
    answerNextQuestion(QMessageBox::Yes);
    click(1, JobModel::Run);
    QTRY_VERIFY_WITH_TIMEOUT(run()->bytesDone() > 0, 60000);
}

void answerNextQuestion(QMessageBox::StandardButton button)
{
    inNext<QMessageBox>([button](QMessageBox *box) {
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

void typeInNextDialog(const QString &password)
{
    inNext<QInputDialog>([password](QInputDialog *dialog) {
        QLineEdit *field = dialog->findChild<QLineEdit *>();
        QCOMPARE(field->echoMode(), QLineEdit::Password);
        QTest::keyClicks(field, password);
        QTest::keyClick(field, Qt::Key_Return);
    });
}

void chooseInNextDialog(const QString &folder)
{
    inNext<QFileDialog>([folder](QFileDialog *dialog) {
        dialog->findChild<QLineEdit *>()->setText(folder);
        QPushButton *open = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
        QTest::mouseClick(open, Qt::LeftButton);
    });
}

int runTests(QObject *tests, int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10)); // as on most desktops
    return QTest::qExec(tests, argc, argv);
}
