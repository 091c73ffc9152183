// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PageThread.h"
#include "ShownList.h"
#include "TestCase.h"

#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QStringListModel>

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

/// A list that is given another model: none hears what is another one's.
class FileListModelChangeTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheRowsWhenTheModelIsTakenAway();
    void cutsOffAModelThatIsReplaced();
    void givesTheSecondModelAButtonThatStays();
    void keepsTheNewModelsRowsFromTheOldModelsSession();
    void keepsARequestUnderWayWhenTheSameModelIsSetAgain();
    void keepsItsOneButtonWhenTheSameModelIsSetAgain();
    void cutsOffAModelOfAnotherKind();
    void survivesAModelReplacedWhileItsButtonIsClicked();
    void ignoresAClickOnAReleasedButton();
    void sparesTheNextModelFromALatePageOrSession_data();
    void sparesTheNextModelFromALatePageOrSession();
    void asksTheNextModelForAPageThatWasWantedBefore();
    void takesALateSessionOfAModelThatIsSetAgain();
    void survivesItsDeletionByACallThatWasQueued();

public Q_SLOTS:
    void replaceModel();

private:
    QPointer<FileListTableView> actedOn;
    QPointer<PagedModel> replacement;
};

void FileListModelChangeTest::replaceModel()
{
    actedOn->setModel(replacement);
}

void FileListModelChangeTest::keepsTheRowsWhenTheModelIsTakenAway()
{
    List list;
    list.fill(2);
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));

    list.view.setModel(nullptr);
    list.click();
    list.click();

    QCOMPARE(list.view.model(), static_cast<QAbstractItemModel *>(&list.model));
    QCOMPARE(list.paging(), QString("2 loading..."));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(list.model.requests, 1); // nobody was asked
    list.model.announce(1, false);
    QCOMPARE(list.paging(), QString("2 loading...")); // nobody listens
}

void FileListModelChangeTest::cutsOffAModelThatIsReplaced()
{
    List list;
    PagedModel second;

    list.view.setModel(&second);
    list.view.StartLoadingData();
    list.model.announce(1, true);
    list.model.changeSession();

    QCOMPARE(list.model.requests, 0);
    QCOMPARE(second.requests, 1);
    QCOMPARE(second.rowCount(), 1);
}

void FileListModelChangeTest::givesTheSecondModelAButtonThatStays()
{
    List list;
    list.view.StartLoadingData(); // and never answers
    PagedModel second;

    list.view.setModel(&second);
    QCoreApplication::processEvents();
    compat::deliverDeferredDeletes();

    QVERIFY(list.view.indexWidget(second.index(0, 0)));
    QCOMPARE(buttonCount(list.view), 1);
    QTest::mouseClick(list.view.indexWidget(second.index(0, 0)), Qt::LeftButton);
    QCOMPARE(second.requests, 1);
}

void FileListModelChangeTest::keepsTheNewModelsRowsFromTheOldModelsSession()
{
    List list;
    PagedModel second;
    list.view.setModel(&second);
    list.view.StartLoadingData();
    second.deliver(3, false);

    list.model.changeSession();

    QCOMPARE(second.rowCount(), 4);
    QCOMPARE(second.requests, 1);
}

void FileListModelChangeTest::keepsARequestUnderWayWhenTheSameModelIsSetAgain()
{
    List list;
    list.view.StartLoadingData();

    list.view.setModel(&list.model);
    list.view.StartLoadingData();

    QCOMPARE(list.model.requests, 1);
}

void FileListModelChangeTest::keepsItsOneButtonWhenTheSameModelIsSetAgain()
{
    List list;
    list.fill(2);

    list.view.setModel(&list.model);

    QCOMPARE(buttonCount(list.view), 1);
    QCOMPARE(list.paging(), QString("3 Next >>"));
}

void FileListModelChangeTest::cutsOffAModelOfAnotherKind()
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

void FileListModelChangeTest::survivesAModelReplacedWhileItsButtonIsClicked()
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

void FileListModelChangeTest::ignoresAClickOnAReleasedButton()
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

void FileListModelChangeTest::sparesTheNextModelFromALatePageOrSession_data()
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

void FileListModelChangeTest::sparesTheNextModelFromALatePageOrSession()
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

void FileListModelChangeTest::asksTheNextModelForAPageThatWasWantedBefore()
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

void FileListModelChangeTest::takesALateSessionOfAModelThatIsSetAgain()
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

void FileListModelChangeTest::survivesItsDeletionByACallThatWasQueued()
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

TESSALINE_TEST_MAIN(FileListModelChangeTest)
#include "tst_filelistmodelchange.moc"
