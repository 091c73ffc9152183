// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ShownList.h"
#include "TestCase.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

namespace {

void send(QWidget *widget, QEvent::Type type, const QPoint &place, Qt::MouseButton button)
{
    QMouseEvent event(type, place, widget->mapToGlobal(place), button, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// Drags the right border of a section, as a user does.
void dragBorder(QHeaderView *header, int section, int distance)
{
    const QPoint border(header->sectionViewportPosition(section) + header->sectionSize(section) - 1,
                        header->height() / 2);
    const QPoint end = border + QPoint(distance, 0);
    QWidget *viewport = header->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, border);
    send(viewport, QEvent::MouseMove, end, Qt::NoButton);
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, end);
}

} // namespace

/// What a user does to a file list with the mouse, and what its columns make of that.
class FileListByMouseTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void asksForNoPageBeforeTheMouseIsReleased();
    void asksForNoPageWhenTheMouseIsReleasedElsewhere();
    void hasSectionsThatTheUserCanSize();
    void sizesTheModelsFirstColumnWhereverItIsOnTheScreen();
    void leavesAsMuchRoomAsTheScrollBarTakes();
    void leavesRoomForTheScrollBarWhenOnlyTheHeightChanges();
    void leavesFurtherColumnsAlone();
};

void FileListByMouseTest::asksForNoPageBeforeTheMouseIsReleased()
{
    List list;

    QTest::mousePress(list.button(), Qt::LeftButton);

    QCOMPARE(list.model.requests, 0);
    QTest::mouseRelease(list.button(), Qt::LeftButton);
    QCOMPARE(list.model.requests, 1);
}

void FileListByMouseTest::asksForNoPageWhenTheMouseIsReleasedElsewhere()
{
    List list;
    QWidget *button = list.button();
    const QPoint outside(-20, -20);

    QTest::mousePress(button, Qt::LeftButton);
    send(button, QEvent::MouseMove, outside, Qt::NoButton);
    QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, outside);

    QCOMPARE(list.model.requests, 0);
    QCOMPARE(list.paging(), QString("0 "));
}

void FileListByMouseTest::hasSectionsThatTheUserCanSize()
{
    List list;
    const int before = list.view.horizontalHeader()->sectionSize(1);

    dragBorder(list.view.horizontalHeader(), 1, 30);

    QCOMPARE(list.view.horizontalHeader()->sectionSize(1), before + 30);
}

void FileListByMouseTest::sizesTheModelsFirstColumnWhereverItIsOnTheScreen()
{
    List list;
    list.view.horizontalHeader()->moveSection(0, 4);

    list.view.resize(700, 400);
    QCoreApplication::processEvents();

    QCOMPARE(widths(list.view), QString("385,120,70,55,65"));
}

void FileListByMouseTest::leavesAsMuchRoomAsTheScrollBarTakes()
{
    List list;
    list.view.verticalScrollBar()->setFixedWidth(40);
    list.fill(32); // more than fit
    QTRY_VERIFY(list.view.verticalScrollBar()->isVisible());

    list.view.FinishLoadingData(0, false);

    QCOMPARE(list.view.verticalScrollBar()->width(), 40);
    QCOMPARE(widths(list.view), QString("245,120,70,55,65"));
}

void FileListByMouseTest::leavesRoomForTheScrollBarWhenOnlyTheHeightChanges()
{
    List list;
    list.fill(21); // with the paging row 396 pixels: the bar is there, by the header's height
    QTRY_VERIFY(list.view.verticalScrollBar()->isVisible());
    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 285);

    list.view.resize(600, 390);
    QCoreApplication::processEvents();

    const int bar = list.view.verticalScrollBar()->width();
    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 285 - bar);
}

void FileListByMouseTest::leavesFurtherColumnsAlone()
{
    PagedModel model;
    model.setColumnCount(6);
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 600, 400);
    view.horizontalHeader()->resizeSection(5, 100);

    view.resize(700, 400);
    QCoreApplication::processEvents();

    QCOMPARE(widths(view), QString("385,120,70,55,65,100"));
}

TESSALINE_TEST_MAIN(FileListByMouseTest)
#include "tst_filelistbymouse.moc"
