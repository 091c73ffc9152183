// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellEditor.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>
#include <QPointer>
#include <QStandardItemModel>

using CellEditor::Commit;

/// What all cell editors have in common, by itself.
class CellEditorTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheCellOfADressedWidget();
    void knowsNoCellOfOthers();
    void knowsWhoTakesPartInACommit();
    void actsAtOnceWhereNoCommitIsUnderWay();
    void actsWhenTheCommitIsDone_data();
    void actsWhenTheCommitIsDone();
    void actsWhenTheOutermostCommitIsDone();
    void isNoLongerUnderWayWhenItActs();
    void putsOffTheDeletionOfTheEditor();
    void keepsNothingElseFromTheEditor();

private:
    QObject delegate;
    QObject editor;
    QObject other;
};

void CellEditorTest::knowsTheCellOfADressedWidget()
{
    QStandardItemModel model(2, 2);
    QLineEdit field;

    CellEditor::dress(&field, "column", model.index(1, 0));
    model.insertRow(0);

    QCOMPARE(QModelIndex(CellEditor::cellOf(&field)), model.index(2, 0));
}

void CellEditorTest::knowsNoCellOfOthers()
{
    QLineEdit field;
    new QObject(&field);

    QVERIFY(!CellEditor::cellOf(&field).isValid());
}

void CellEditorTest::knowsWhoTakesPartInACommit()
{
    const Commit commit(&delegate, &editor);

    QVERIFY(Commit::isUnderWay(&delegate));
    QVERIFY(Commit::isUnderWay(&editor));
    QVERIFY(!Commit::isUnderWay(&other));
}

void CellEditorTest::actsAtOnceWhereNoCommitIsUnderWay()
{
    const Commit commit(&delegate, &editor);
    bool acted = false;

    Commit::whenDone(&other, [&acted]() {
        acted = true;
    });

    QVERIFY(acted);
}

void CellEditorTest::actsWhenTheCommitIsDone_data()
{
    QTest::addColumn<bool>("asksForTheEditor");

    QTest::newRow("delegate") << false;
    QTest::newRow("editor") << true;
}

void CellEditorTest::actsWhenTheCommitIsDone()
{
    QFETCH(bool, asksForTheEditor);
    bool acted = false;
    {
        const Commit commit(&delegate, &editor);
        Commit::whenDone(asksForTheEditor ? &editor : &delegate, [&acted]() {
            acted = true;
        });
        QVERIFY(!acted);
    }

    QVERIFY(acted);
}

void CellEditorTest::actsWhenTheOutermostCommitIsDone()
{
    bool acted = false;
    {
        const Commit outer(&delegate, &editor);
        {
            const Commit inner(&delegate, &other);
            Commit::whenDone(&delegate, [&acted]() {
                acted = true;
            });
        }
        QVERIFY(!acted);
    }

    QVERIFY(acted);
}

void CellEditorTest::isNoLongerUnderWayWhenItActs()
{
    bool wasUnderWay = true;
    {
        const Commit commit(&delegate, &editor);
        Commit::whenDone(&editor, [this, &wasUnderWay]() {
            wasUnderWay = Commit::isUnderWay(&editor) || Commit::isUnderWay(&delegate);
        });
    }

    QVERIFY(!wasUnderWay);
}

void CellEditorTest::putsOffTheDeletionOfTheEditor()
{
    const QPointer<QObject> due = new QObject;
    {
        const Commit outer(&delegate, due);
        {
            const Commit inner(&delegate, due);
            due->deleteLater();
            goThroughEvents();
        }
        goThroughEvents();
        QVERIFY(due);
    }

    goThroughEvents();

    QVERIFY(!due);
}

void CellEditorTest::keepsNothingElseFromTheEditor()
{
    QLineEdit field;
    const Commit commit(&delegate, &field);

    QTest::keyClicks(&field, "typed");

    QCOMPARE(field.text(), QString("typed"));
}

TESSALINE_TEST_MAIN(CellEditorTest)
#include "tst_celleditor.moc"
