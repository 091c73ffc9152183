// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListTableView.h"
#include "PagedModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>
#include <QStringListModel>

/// Models that break the contract, and calls at the wrong time: nothing crashes.
class FileListSafetyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isShownWithoutAModel();
    void isCalledWithoutAModel();
    void showsAModelOfAnotherKindWithoutPaging();
    void survivesAModelThatDies();
    void survivesAModelThatDiesWhileLoading();
    void survivesAnAnswerWithoutAButton();
    void survivesAnAnswerThatComesTwice();
    void survivesARequestWithoutAButton();
    void survivesAModelThatIsCleared();
    void survivesAModelThatRemovesThePagingRow();
    void survivesAModelWithoutColumns();
    void survivesAModelThatReplacesItsColumns_data();
    void survivesAModelThatReplacesItsColumns();
    void ignoresRowsOfAChild();
    void keepsTheCurrentCellWhenTheFocusedButtonScrollsAway();
};

void FileListSafetyTest::isShownWithoutAModel()
{
    FileListTableView view;

    showWindow(&view, 400, 300);
    use(&view);

    QVERIFY(!view.model());
}

void FileListSafetyTest::isCalledWithoutAModel()
{
    FileListTableView view;

    view.setModel(nullptr);
    view.StartLoadingData();
    view.FinishLoadingData(1, true);
    view.SessionChanged();
    view.SortByColumn(3);
    view.rowsInserted(QModelIndex(), 0, 0);
    use(&view);

    QCOMPARE(buttonCount(view), 0);
}

void FileListSafetyTest::showsAModelOfAnotherKindWithoutPaging()
{
    tolerateWarnings("Object::connect");
    tolerateWarnings("QObject::connect");
    QStringListModel model(QStringList() << "a"
                                         << "b");
    FileListTableView view;

    view.setModel(&model);
    showWindow(&view, 400, 300);
    view.StartLoadingData();
    view.FinishLoadingData(1, true);
    view.SessionChanged();
    model.insertRow(0);
    use(&view);

    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(buttonCount(view), 0);
}

void FileListSafetyTest::survivesAModelThatDies()
{
    PagedModel *model = new PagedModel;
    FileListTableView view;
    view.setModel(model);
    showWindow(&view, 400, 300);

    delete model;
    view.resize(450, 300);
    view.FinishLoadingData(1, true);
    view.SessionChanged();
    use(&view);

    QVERIFY(!view.model());
}

void FileListSafetyTest::survivesAModelThatDiesWhileLoading()
{
    PagedModel *model = new PagedModel;
    FileListTableView view;
    view.setModel(model);
    view.StartLoadingData();
    delete model;
    PagedModel second;

    view.setModel(&second);
    goThroughEvents();
    view.StartLoadingData();

    QCOMPARE(second.requests, 1);
    QCOMPARE(labelOfButton(view), QString("loading..."));
}

void FileListSafetyTest::survivesAnAnswerWithoutAButton()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    model.deliver(1, true);

    model.deliver(1, false);
    use(&view);

    QCOMPARE(labelOfButton(view), QString("none"));
}

void FileListSafetyTest::survivesAnAnswerThatComesTwice()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    view.StartLoadingData();

    model.deliver(2, true);
    model.announce(2, true);
    use(&view);

    QCOMPARE(model.rowCount(), 2); // the second took no row with it
}

void FileListSafetyTest::survivesARequestWithoutAButton()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    model.deliver(1, true);

    view.StartLoadingData();

    QCOMPARE(model.requests, 1);
}

void FileListSafetyTest::survivesAModelThatIsCleared()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 400, 300);
    view.StartLoadingData();
    model.deliver(3, false);

    model.clear();
    model.setColumnCount(5);
    model.appendRow(new QStandardItem("new"));
    model.announce(1, false);
    use(&view);

    QCOMPARE(buttonCount(view), 0); // the paging row went with the rest
    model.changeSession();
    QCOMPARE(labelOfButton(view), QString("loading..."));
}

void FileListSafetyTest::survivesAModelThatRemovesThePagingRow()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 400, 300);
    view.StartLoadingData();

    model.removeRow(0);
    model.announce(0, true);
    use(&view);

    QCOMPARE(model.rowCount(), 0);
    model.changeSession();
    QCOMPARE(labelOfButton(view), QString("loading..."));
}

void FileListSafetyTest::survivesAModelWithoutColumns()
{
    PagedModel model;
    model.setColumnCount(0);
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 400, 300);

    use(&view);
    model.changeSession();
    model.announce(0, true);

    QCOMPARE(buttonCount(view), 0);
}

void FileListSafetyTest::survivesAModelThatReplacesItsColumns_data()
{
    QTest::addColumn<bool>("changesSession");

    QTest::newRow("and ends") << false;
    QTest::newRow("and changes the session") << true;
}

void FileListSafetyTest::survivesAModelThatReplacesItsColumns()
{
    QFETCH(bool, changesSession);
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 400, 300);
    model.deliver(2, false);
    goThroughEvents();
    const QPointer<QWidget> button = view.indexWidget(model.index(2, 0));

    model.setColumnCount(0);
    model.setColumnCount(5);
    if (changesSession) {
        model.changeSession();
    } else {
        model.announce(0, true);
    }

    QVERIFY(button); // the view has not let go of it yet
    use(&view);
    QVERIFY(!button);

    QCOMPARE(buttonCount(view), changesSession ? 1 : 0);
}

void FileListSafetyTest::ignoresRowsOfAChild()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 400, 300);
    view.StartLoadingData();
    model.deliver(1, false);
    QWidget *button = view.indexWidget(model.index(1, 0));

    model.item(0, 0)->appendRow(new QStandardItem("child"));
    model.item(0, 0)->appendRow(new QStandardItem("child"));
    use(&view);

    QCOMPARE(view.indexWidget(model.index(1, 0)), button);
    QCOMPARE(buttonCount(view), 1);
}

void FileListSafetyTest::keepsTheCurrentCellWhenTheFocusedButtonScrollsAway()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 325, 300); // a scroll bar leaves no room for the button
    QWidget *button = view.indexWidget(model.index(0, 0));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(button->hasFocus());
    model.deliver(50, false);

    view.setCurrentIndex(model.index(3, 1)); // lays the rows out

    QVERIFY(!button->isVisible());
    QCOMPARE(view.currentIndex(), QModelIndex(model.index(3, 1)));
    QVERIFY(view.hasFocus());
}

TESSALINE_TEST_MAIN(FileListSafetyTest)
#include "tst_filelistsafety.moc"
