// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListTableView.h"
#include "PageThread.h"
#include "PagedModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QStringListModel>

namespace {

QString labelOfButton(const FileListTableView &view)
{
    const QList<QPushButton *> buttons = view.viewport()->findChildren<QPushButton *>();
    return buttons.isEmpty() ? QString("none") : buttons.last()->text();
}

} // namespace

/// A list that a call can delete.
class SelfDeletingList : public FileListTableView
{
    Q_OBJECT

public Q_SLOTS:
    void vanish()
    {
        delete this;
    }
};

/// A model of another kind that has all that paging takes.
class OfferingList : public QStringListModel
{
    Q_OBJECT

public:
    void speakUp()
    {
        emit pageLoaded(1, false);
        emit dataChanged();
    }

    int requests = 0;

public Q_SLOTS:
    void LoadItems()
    {
        ++requests;
    }

Q_SIGNALS:
    void pageLoaded(qint64 count, bool completed);
    void dataChanged();
};

/// Models that break the contract, and calls at the wrong time: nothing crashes.
class FileListSafetyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isShownWithoutAModel();
    void isCalledWithoutAModel();
    void showsAModelOfAnotherKindWithoutPaging();
    void cutsOffAModelOfAnotherKind();
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
    void survivesAModelReplacedWhileItsButtonIsClicked();
    void ignoresAClickOnAReleasedButton();
    void takesAPageFromAnotherThread();
    void takesASessionFromAnotherThread();
    void sparesTheNextModelFromALatePageOrSession_data();
    void sparesTheNextModelFromALatePageOrSession();
    void asksTheNextModelForAPageThatWasWantedBefore();
    void takesALateSessionOfAModelThatIsSetAgain();
    void survivesItsDeletionByACallThatWasQueued();
    void ignoresRowsOfAChild();
    void keepsTheCurrentCellWhenTheFocusedButtonScrollsAway();

public Q_SLOTS:
    void replaceModel();

private:
    QPointer<FileListTableView> actedOn;
    QPointer<PagedModel> replacement;
};

void FileListSafetyTest::replaceModel()
{
    actedOn->setModel(replacement);
}

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

void FileListSafetyTest::cutsOffAModelOfAnotherKind()
{
    OfferingList former;
    PagedModel model;
    FileListTableView view;
    view.setModel(&former);
    view.setModel(&model);
    showWindow(&view, 600, 300);
    model.insertPage(2);
    view.StartLoadingData();

    former.speakUp();

    QCOMPARE(former.requests, 0);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(labelOfButton(view), QString("loading..."));
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

void FileListSafetyTest::survivesAModelReplacedWhileItsButtonIsClicked()
{
    PagedModel model;
    PagedModel second;
    FileListTableView view;
    view.setModel(&model);
    showWindow(&view, 400, 300);
    actedOn = &view;
    replacement = &second;
    connect(&view, SIGNAL(requestItems()), SLOT(replaceModel()));

    QTest::mouseClick(view.indexWidget(model.index(0, 0)), Qt::LeftButton);
    disconnect(&view, SIGNAL(requestItems()), this, SLOT(replaceModel()));
    use(&view);

    QCOMPARE(buttonCount(view), 1);
    QVERIFY(view.indexWidget(second.index(0, 0)));
}

void FileListSafetyTest::ignoresAClickOnAReleasedButton()
{
    PagedModel first;
    PagedModel second;
    FileListTableView view;
    view.setModel(&first);
    const QPointer<QPushButton> released = view.viewport()->findChild<QPushButton *>();
    QVERIFY(released);
    view.setModel(&second);
    QVERIFY(released); // until the event loop turns

    released->click();

    QCOMPARE(second.requests, 0);
}

void FileListSafetyTest::takesAPageFromAnotherThread()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    view.StartLoadingData();
    PageThread loader(&model, false);

    loader.start();
    QVERIFY(loader.join());

    QCOMPARE(labelOfButton(view), QString("loading..."));
    QTRY_COMPARE(labelOfButton(view), QString("none"));
}

void FileListSafetyTest::takesASessionFromAnotherThread()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    PageThread loader(&model, true);

    loader.start();
    QVERIFY(loader.join());

    QTRY_COMPARE(model.requests, 1);
    QCOMPARE(labelOfButton(view), QString("loading..."));
}

void FileListSafetyTest::sparesTheNextModelFromALatePageOrSession_data()
{
    QTest::addColumn<bool>("changesSession");
    QTest::addColumn<bool>("dies");
    QTest::addColumn<bool>("isTakenAway");

    QTest::newRow("page") << false << false << false;
    QTest::newRow("session") << true << false << false;
    QTest::newRow("page of a model that dies") << false << true << false;
    QTest::newRow("session of a model that dies") << true << true << false;
    QTest::newRow("page, taken away in between") << false << false << true;
    QTest::newRow("page of a model that dies, likewise") << false << true << true;
}

void FileListSafetyTest::sparesTheNextModelFromALatePageOrSession()
{
    QFETCH(bool, changesSession);
    QFETCH(bool, dies);
    QFETCH(bool, isTakenAway);
    QScopedPointer<PagedModel> model(new PagedModel);
    PagedModel second;
    FileListTableView view;
    view.setModel(model.data());
    view.StartLoadingData();
    PageThread loader(model.data(), changesSession);
    loader.start();
    QVERIFY(loader.join()); // what it said is on its way to the view

    if (dies) {
        model.reset();
    }
    if (isTakenAway) {
        view.setModel(nullptr);
    }
    view.setModel(&second);
    second.insertPage(3);
    goThroughEvents();

    QCOMPARE(second.rowCount(), 4);
    QCOMPARE(second.requests, 0);
    QCOMPARE(labelOfButton(view), QString()); // nothing was asked for, nothing has come
}

void FileListSafetyTest::asksTheNextModelForAPageThatWasWantedBefore()
{
    PagedModel model;
    PagedModel second;
    PagedModel third;
    FileListTableView view;
    view.setModel(&model);
    QMetaObject::invokeMethod(&view, "StartLoadingData", Qt::QueuedConnection);

    view.setModel(&second);
    goThroughEvents();

    QCOMPARE(model.requests, 0);
    QCOMPARE(second.requests, 1);
    QCOMPARE(labelOfButton(view), QString("loading..."));
    view.setModel(&third);
    goThroughEvents();
    QCOMPARE(third.requests, 0); // it was wanted once
}

void FileListSafetyTest::takesALateSessionOfAModelThatIsSetAgain()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    PageThread loader(&model, true);
    loader.start();
    QVERIFY(loader.join());

    view.setModel(&model);
    goThroughEvents();

    QCOMPARE(model.requests, 1);
    QCOMPARE(model.rowCount(), 1);
}

void FileListSafetyTest::survivesItsDeletionByACallThatWasQueued()
{
    PagedModel model;
    PagedModel second;
    SelfDeletingList *view = new SelfDeletingList;
    const QPointer<SelfDeletingList> guard(view);
    view->setModel(&model);
    QMetaObject::invokeMethod(view, "vanish", Qt::QueuedConnection);

    view->setModel(&second);

    QVERIFY(!guard);
    QCOMPARE(second.rowCount(), 0);
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
