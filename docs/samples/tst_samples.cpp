// SPDX-License-Identifier: LGPL-3.0-or-later
// What the manual says of its samples.
#include "FilesModel.h"
#include "PaintedButtonDelegate.h"
#include "Samples.h"
#include "TestCase.h"

#include <EditableTableView.h>
#include <FileListTableView.h>
#include <SpinBox.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QTest>

namespace {

const int secretColumn = 2;
const int checkColumn = 3;
const int runColumn = 4;

QString buttonText(const QAbstractItemView &list, int row)
{
    const QPushButton *button
        = qobject_cast<QPushButton *>(list.indexWidget(list.model()->index(row, 0)));
    return button ? button->text() : QString("none");
}

template <class Editor> Editor *editorIn(EditableTableView *view, int row, int column)
{
    view->setCurrentIndex(view->model()->index(row, column));
    view->edit(view->model()->index(row, column));
    return qobject_cast<Editor *>(view->button(row, column));
}

} // namespace

class SamplesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listsAFolderPageByPage();
    void listsAnotherFolder();
    void sortsByWhatACellMeans();
    void declaresAndBinds();
    void losesABindingWhenColumnsAreDeclaredAgain();
    void reportsTheNameWithAClick();
    void connectsByPointer();
    void keepsASecretUnderItsRole();
    void opensEditorsAtOneClick();
    void translatesCaptionsOfTheApplication();
    void declaresKeywordsAnewWhenTheyAreTranslated();
    void paintsButtons();
    void reachesButtonsWithTabOnceItsOwnNavigationIsOff();
    void namesButtonsForAScreenReader();
    void readsNothingInAButtonCellByItself();
    void asksForAHintWhenClicked();
};

void SamplesTest::listsAFolderPageByPage()
{
    QTemporaryDir folder;
    for (int number = 0; number < 150; ++number) {
        QFile file(folder.filePath(QString("file%1.txt").arg(number)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    FilesModel files(folder.path());
    FileListTableView list;
    list.setModel(&files);
    list.show();
    QCOMPARE(files.rowCount(), 1);

    list.StartLoadingData();

    QCOMPARE(files.rowCount(), 101);
    QCOMPARE(buttonText(list, 100), QString("Next >>"));
    qobject_cast<QPushButton *>(list.indexWidget(files.index(100, 0)))->click();
    QCOMPARE(files.rowCount(), 150);
    QCOMPARE(buttonText(list, 149), QString("none"));
}

void SamplesTest::listsAnotherFolder()
{
    QTemporaryDir empty;
    QTemporaryDir folder;
    QFile file(folder.filePath("letter.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    FilesModel files(empty.path());
    FileListTableView list;
    list.setModel(&files);
    list.StartLoadingData();
    QCOMPARE(files.rowCount(), 0);

    files.setFolder(folder.path());

    QCOMPARE(files.rowCount(), 1);
    QCOMPARE(files.index(0, 0).data().toString(), QString("letter.txt"));
}

void SamplesTest::sortsByWhatACellMeans()
{
    QTemporaryDir folder;
    for (int size = 9; size <= 11; ++size) {
        QFile file(folder.filePath(QString::number(size)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(size, 'x'));
    }
    FilesModel files(folder.path());
    FileListTableView list;
    list.setModel(&files);
    list.StartLoadingData();

    list.sortByColumn(2, Qt::AscendingOrder);

    QCOMPARE(files.index(0, 0).data().toString(), QString("9"));
    QCOMPARE(files.index(2, 0).data().toString(), QString("11"));
}

void SamplesTest::declaresAndBinds()
{
    QStandardItemModel jobs(2, 6);
    QStringListModel folders(QStringList() << "/home"
                                           << "/srv");
    EditableTableView view;
    samples::declare(&view, &jobs);
    samples::setSizes(&view);
    view.bindModel(1, &folders);
    view.show();

    const QComboBox *box = editorIn<QComboBox>(&view, 0, 1);

    QVERIFY(box);
    QCOMPARE(box->count(), 2);
    QVERIFY(view.button(1, runColumn));
}

void SamplesTest::losesABindingWhenColumnsAreDeclaredAgain()
{
    QStandardItemModel jobs(2, 6);
    QStringListModel folders(QStringList() << "/home"
                                           << "/srv");
    EditableTableView view;
    samples::declare(&view, &jobs);
    view.bindModel(1, &folders);
    view.setColumns(view.getColumns());
    view.show();
    QCOMPARE(editorIn<QComboBox>(&view, 0, 1)->count(), 0);

    samples::declareAgain(&view, view.getColumns(), &folders);

    QCOMPARE(editorIn<QComboBox>(&view, 0, 1)->count(), 2);
}

void SamplesTest::reportsTheNameWithAClick()
{
    QStandardItemModel jobs(2, 6);
    jobs.setData(jobs.index(1, 0), "Mail");
    EditableTableView view;
    samples::declare(&view, &jobs);
    samples::JobsWindow window(&view, &jobs);

    qobject_cast<QPushButton *>(view.button(1, runColumn))->click();
    QCOMPARE(window.lastRun, QString("Mail"));

    qobject_cast<QPushButton *>(view.button(1, runColumn + 1))->click();
    QCOMPARE(jobs.rowCount(), 1);
}

void SamplesTest::connectsByPointer()
{
    QStandardItemModel jobs(2, 6);
    QStandardItemModel others(1, 1);
    EditableTableView view;
    samples::declare(&view, &jobs);
    EditableTableView other;
    samples::JobsWindow window(&other, &others);
    samples::connectByPointer(&view, &window);
    jobs.setData(jobs.index(0, 0), "Mail");

    qobject_cast<QPushButton *>(view.button(0, runColumn))->click();

    QCOMPARE(window.lastRun, QString("Mail"));
}

void SamplesTest::keepsASecretUnderItsRole()
{
    QStandardItemModel jobs(1, 6);
    EditableTableView view;
    samples::declare(&view, &jobs);
    view.show();
    const QModelIndex cell = jobs.index(0, secretColumn);
    samples::setSecret(&jobs, cell, "old secret");
    QCOMPARE(samples::secretOf(cell), QString("old secret"));

    QLineEdit *field = editorIn<QLineEdit>(&view, 0, secretColumn);
    QVERIFY(field);
    QVERIFY(!field->text().contains("old"));
    QVERIFY(field->hasSelectedText());
    QTest::keyClicks(field, "new");
    QTest::keyClick(field, Qt::Key_Return);

    QTRY_COMPARE(samples::secretOf(cell), QString("new"));
    QCOMPARE(cell.data().toString().size(), 3);
    QVERIFY(cell.data().toString() != QString("new"));
}

void SamplesTest::opensEditorsAtOneClick()
{
    QStandardItemModel jobs(2, 6);
    EditableTableView view;
    samples::declare(&view, &jobs);
    samples::editAtOneClick(&view);
    view.resize(800, 200);
    view.show();
    QCoreApplication::processEvents();
    const QPoint place = view.visualRect(jobs.index(1, checkColumn)).center();

    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::KeyboardModifiers(), place);

    QTRY_VERIFY(view.button(1, checkColumn));
}

void SamplesTest::translatesCaptionsOfTheApplication()
{
#ifndef SAMPLE_HAS_TRANSLATIONS
    QSKIP("Made without the linguist tools");
#endif
    QTranslator library;
    QTranslator application;
    QStandardItemModel jobs(1, 4);
    EditableTableView view;
    view.setColumns(samples::translatedColumns());
    view.setModel(&jobs);

    QVERIFY(samples::installTranslators(&library, &application, "de"));
    QCOMPARE(qobject_cast<QPushButton *>(view.button(0, 2))->text(), QString("Run"));
    view.setModel(nullptr);
    view.setModel(&jobs);

    QCOMPARE(qobject_cast<QPushButton *>(view.button(0, 2))->text(), QString("Starten"));
    QCOMPARE(qobject_cast<QPushButton *>(view.button(0, 3))->text(),
             QString::fromUtf8("L\xc3\xb6schen"));
    view.edit(jobs.index(0, 1));
    QCOMPARE(qobject_cast<QAbstractButton *>(view.button(0, 1))->text(),
             QString::fromUtf8("Pr\xc3\xbc"
                               "fen"));
}

// What retranslateUi() of a form with translatable columns does.
void SamplesTest::declaresKeywordsAnewWhenTheyAreTranslated()
{
    QStandardItemModel jobs(1, 2);
    EditableTableView view;
    view.setColumns(QStringList() << "editbox"
                                  << "button:Run");
    view.setModel(&jobs);
    const QPointer<QAbstractItemDelegate> before = view.itemDelegateForColumn(0);

    view.setColumns(QStringList() << "Textfeld"
                                  << "button:Run");

    QVERIFY(!before);
    QVERIFY(!view.itemDelegateForColumn(0));
}

void SamplesTest::paintsButtons()
{
    QStandardItemModel jobs(1000, 2);
    EditableTableView view;
    view.setColumns(QStringList() << "editbox"
                                  << "");
    view.setModel(&jobs);
    QStandardItemModel done(1, 1);
    samples::paintButtons(&view, 1, &done, SLOT(revert()));
    view.show();
    QCoreApplication::processEvents();
    PaintedButtonDelegate *painted
        = qobject_cast<PaintedButtonDelegate *>(view.itemDelegateForColumn(1));
    QSignalSpy clicks(painted, SIGNAL(clicked(QModelIndex)));

    const QModelIndex cell = jobs.index(2, 1);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                      view.visualRect(cell).center());
    QCOMPARE(clicks.count(), 1);
    view.setCurrentIndex(cell);
    QTest::keyClick(&view, Qt::Key_Space);

    QCOMPARE(clicks.count(), 2);
    QVERIFY(!view.indexWidget(cell));
}

void SamplesTest::reachesButtonsWithTabOnceItsOwnNavigationIsOff()
{
    QStandardItemModel jobs(2, 6);
    EditableTableView view;
    samples::declare(&view, &jobs);
    view.setTabKeyNavigation(false);
    view.show();
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();

    QTest::keyClick(&view, Qt::Key_Tab);

    QCOMPARE(QApplication::focusWidget(), view.button(0, runColumn));
}

void SamplesTest::namesButtonsForAScreenReader()
{
    QStandardItemModel jobs(1, 6);
    jobs.setData(jobs.index(0, 0), "Mail");
    EditableTableView view;
    samples::declare(&view, &jobs);
    samples::nameButtons(&view, &jobs, runColumn);
    view.show();

    QAccessibleInterface *button = QAccessible::queryAccessibleInterface(view.button(0, runColumn));
    QCOMPARE(button->text(QAccessible::Name), QString("Run Mail"));
    QCOMPARE(button->text(QAccessible::Description), QString("EditableTableViewButton column4"));
    QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&view);
    QCOMPARE(table->text(QAccessible::Name), QString("Backups"));
}

void SamplesTest::readsNothingInAButtonCellByItself()
{
    QStandardItemModel jobs(1, 6);
    EditableTableView view;
    samples::declare(&view, &jobs);
    view.show();

    QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&view);
    QCOMPARE(table->tableInterface()->cellAt(0, runColumn)->text(QAccessible::Name), QString());
    QAccessibleInterface *button = QAccessible::queryAccessibleInterface(view.button(0, runColumn));
    QCOMPARE(button->text(QAccessible::Name), QString("Run"));
}

void SamplesTest::asksForAHintWhenClicked()
{
    QWidget window;
    SpinBox limit(&window);
    QLabel hint(&window);
    hint.hide();
    samples::showHint(&limit, &hint);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    limit.clearFocus();
    limit.setFocus();
    QVERIFY(hint.isHidden());
    limit.clearFocus();

    QTest::mouseClick(limit.findChild<QLineEdit *>(), Qt::LeftButton);
    limit.setFocus(Qt::MouseFocusReason);

    QVERIFY(!hint.isHidden());
}

TESSALINE_TEST_MAIN(SamplesTest)
#include "tst_samples.moc"
