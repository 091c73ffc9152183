// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellEditor.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>
#include <QStringList>

using CellEditor::Commit;

/// In which order things are done at the end of commits, and to what is still there.
class CommitEndsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void actsInTheOrderInWhichItWasAsked();
    void actsOnceOnly();
    void leavesOthersActionsToTheirCommits();
    void actsBeforeTheEditorIsDeleted();
    void sparesAnEditorThatIsDeletedAtOnce();
    void putsOffADeletionThatWasAskedForBefore();
    void deletesAnEditorThatIsAskedAgainAfterACommit();
    void canCommitAnEditorAgainAfterwards();

private:
    QObject delegate;
    QObject other;
};

void CommitEndsTest::actsInTheOrderInWhichItWasAsked()
{
    QStringList acts;
    {
        const Commit commit(&delegate, nullptr);
        Commit::whenDone(&delegate, [&acts]() {
            acts.append("first");
        });
        Commit::whenDone(&delegate, [&acts]() {
            acts.append("second");
        });
    }

    QCOMPARE(acts,
             QStringList() << "first"
                           << "second");
}

void CommitEndsTest::actsOnceOnly()
{
    int acts = 0;
    {
        const Commit commit(&delegate, nullptr);
        Commit::whenDone(&delegate, [&acts]() {
            ++acts;
        });
    }
    {
        const Commit commit(&delegate, nullptr);
    }

    QCOMPARE(acts, 1);
}

void CommitEndsTest::leavesOthersActionsToTheirCommits()
{
    bool acted = false;
    const Commit outer(&other, nullptr);
    {
        const Commit inner(&delegate, nullptr);
        Commit::whenDone(&other, [&acted]() {
            acted = true;
        });
    }

    QVERIFY(!acted);
}

void CommitEndsTest::actsBeforeTheEditorIsDeleted()
{
    const QPointer<QObject> editor = new QObject;
    bool wasAlive = false;
    {
        const Commit commit(&delegate, editor);
        editor->deleteLater();
        goThroughEvents();
        Commit::whenDone(editor, [editor, &wasAlive]() {
            wasAlive = !editor.isNull();
        });
    }
    goThroughEvents();

    QVERIFY(wasAlive);
    QVERIFY(!editor);
}

void CommitEndsTest::sparesAnEditorThatIsDeletedAtOnce()
{
    QPointer<QObject> editor = new QObject;
    {
        const Commit commit(&delegate, editor);
        editor->deleteLater();
        goThroughEvents();
        QVERIFY(editor);
        delete editor;
    }

    goThroughEvents();

    QVERIFY(!editor); // and was deleted once
}

void CommitEndsTest::putsOffADeletionThatWasAskedForBefore()
{
    const QPointer<QObject> editor = new QObject;
    editor->deleteLater();
    {
        const Commit commit(&delegate, editor);
        goThroughEvents();
        QVERIFY(editor);
    }

    goThroughEvents();

    QVERIFY(!editor);
}

void CommitEndsTest::deletesAnEditorThatIsAskedAgainAfterACommit()
{
    const QPointer<QObject> editor = new QObject;
    {
        const Commit commit(&delegate, editor);
    }

    editor->deleteLater();
    goThroughEvents();

    QVERIFY(!editor);
}

void CommitEndsTest::canCommitAnEditorAgainAfterwards()
{
    const QPointer<QObject> editor = new QObject;
    {
        const Commit commit(&delegate, editor);
    }
    {
        const Commit commit(&delegate, editor);
        editor->deleteLater();
        goThroughEvents();
        QVERIFY(editor);
    }

    goThroughEvents();

    QVERIFY(!editor);
}

TESSALINE_TEST_MAIN(CommitEndsTest)
#include "tst_commitends.moc"
