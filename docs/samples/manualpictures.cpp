// SPDX-License-Identifier: LGPL-3.0-or-later
// Writes the pictures of the manual that show one widget each, and architecture.png from the .svg
// that is there (which takes Qt's plug-in for SVG):
//   manualpictures DIR
#include "FilesModel.h"
#include "Samples.h"

#include <EditableTableView.h>
#include <FileListTableView.h>
#include <SpinBox.h>

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QFormLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QStandardItemModel>
#include <QTemporaryDir>

namespace {

bool take(QWidget *widget, const QString &path)
{
    widget->show();
    QCoreApplication::processEvents();
    return widget->grab().save(path);
}

void addJob(QStandardItemModel *jobs, const QString &name, const QString &source, bool verifies)
{
    QList<QStandardItem *> row;
    row << new QStandardItem(name) << new QStandardItem(source) << new QStandardItem
        << new QStandardItem(QLatin1String(verifies ? "1" : ""));
    jobs->appendRow(row);
}

bool takeTable(const QString &path)
{
    QStandardItemModel jobs(0, 6);
    jobs.setHorizontalHeaderLabels(QStringList() << "Name"
                                                 << "Source"
                                                 << "Passphrase"
                                                 << "Check"
                                                 << ""
                                                 << "");
    addJob(&jobs, "Documents", "/home/anna/Documents", true);
    addJob(&jobs, "Pictures", "/home/anna/Pictures", true);
    addJob(&jobs, "Mail", "/home/anna/Mail", false);
    samples::setSecret(&jobs, jobs.index(0, 2), "secret");
    EditableTableView view;
    samples::declare(&view, &jobs);
    samples::setSizes(&view);
    view.resize(760, 120);
    return take(&view, path);
}

void writeFile(const QString &path, int size, int minute)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray(size, 'x'));
        const QDateTime time(QDate(2026, 3, 1), QTime(10, minute));
        file.setFileTime(time, QFileDevice::FileModificationTime);
    }
}

bool takeList(const QString &path)
{
    QTemporaryDir folder;
    for (int number = 0; number < 150; ++number) {
        const QString name = QString("letter-%1.txt").arg(number, 3, 10, QLatin1Char('0'));
        writeFile(folder.filePath(name), 1000 + 431 * number, number % 60);
    }
    FilesModel files(folder.path());
    FileListTableView list;
    list.setModel(&files);
    list.StartLoadingData();
    list.sortByColumn(0, Qt::AscendingOrder);
    list.resize(640, 200);
    list.show();
    list.scrollToBottom();
    return take(&list, path);
}

bool takeSpinBox(const QString &path)
{
    QWidget window;
    QFormLayout form(&window);
    SpinBox *limit = new SpinBox;
    limit->setSuffix(" MiB/s");
    limit->setValue(20);
    QLabel *hint = new QLabel("0 sets no limit.");
    form.addRow("Bandwidth limit:", limit);
    form.addRow(hint);
    window.resize(320, 60);
    return take(&window, path);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication::setStyle("fusion");
    QApplication application(argc, argv);
    QApplication::setFont(QFont("DejaVu Sans", 10));
    QLocale::setDefault(QLocale::c());
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath());
    bool done = takeTable(folder.filePath("table.png"));
    done = takeList(folder.filePath("list.png")) && done;
    done = takeSpinBox(folder.filePath("spinbox.png")) && done;
    done = QImage(folder.filePath("architecture.svg")).save(folder.filePath("architecture.png"))
        && done;
    return done ? 0 : 1;
}
