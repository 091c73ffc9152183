// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditComboItemDelegate.h"
#include "EditorFixture.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QComboBox>
#include <QLineEdit>
#include <QStringListModel>

class EditComboItemDelegateTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensAnEditableComboBoxDescribedAsACombo();
    void opensWithTheStoredText_data();
    void opensWithTheStoredText();
    void writesOnlyATextThatDiffers_data();
    void writesOnlyATextThatDiffers();
    void writesATextThatTheListDoesNotHold();
    void canBeBoundAsACombo();
    void leavesAForeignEditorAlone();

private:
    static QStringListModel *colours(QObject *parent);
};

QStringListModel *EditComboItemDelegateTest::colours(QObject *parent)
{
    return new QStringListModel(QStringList() << "red"
                                              << "green"
                                              << "blue",
                                parent);
}

void EditComboItemDelegateTest::opensAnEditableComboBoxDescribedAsACombo()
{
    EditorFixture fixture("editcombobox");

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0));

    QVERIFY(box);
    QVERIFY(box->isEditable());
    QVERIFY(!box->hasFrame());
    verifyDressed(&fixture, box, 0, 0, "EditableTableViewCombo column0");
}

void EditComboItemDelegateTest::opensWithTheStoredText_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("text");

    QTest::newRow("in the list") << QVariant(QString("green")) << 1 << "green";
    QTest::newRow("not in the list") << QVariant(QString("pink")) << -1 << "pink";
    QTest::newRow("other case") << QVariant(QString("Green")) << -1 << "Green";
    QTest::newRow("empty") << QVariant(QString()) << -1 << "";
    QTest::newRow("million") << QVariant(1000000.0) << -1 << "1000000";
}

void EditComboItemDelegateTest::opensWithTheStoredText()
{
    QFETCH(QVariant, stored);
    EditorFixture fixture("editcombobox");
    fixture.view.bindModel(0, colours(&fixture.view));

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, stored));

    QVERIFY(box);
    QTEST(box->currentIndex(), "current");
    QTEST(box->currentText(), "text");
}

void EditComboItemDelegateTest::writesOnlyATextThatDiffers_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("writes");

    QTest::newRow("typed over") << "red"
                                << "pink"
                                << "edit pink";
    QTest::newRow("typed into nothing") << ""
                                        << "pink"
                                        << "edit pink";
    QTest::newRow("typed an item") << "red"
                                   << "blue"
                                   << "edit blue";
    QTest::newRow("typed the same") << "pink"
                                    << "pink"
                                    << "";
    QTest::newRow("unknown text untouched") << "pink"
                                            << ""
                                            << "";
    QTest::newRow("item untouched") << "green"
                                    << ""
                                    << "";
    QTest::newRow("empty untouched") << ""
                                     << ""
                                     << "";
}

void EditComboItemDelegateTest::writesOnlyATextThatDiffers()
{
    QFETCH(QString, stored);
    QFETCH(QString, typed);
    EditorFixture fixture("editcombobox");
    fixture.view.bindModel(0, colours(&fixture.view));
    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, stored));
    QVERIFY(box);
    box->setCompleter(nullptr); // would complete what is typed to an item
    if (!typed.isEmpty()) {
        box->lineEdit()->selectAll();
        QTest::keyClicks(box, typed);
    }

    commitEditor(box);

    QTEST(fixture.model.writes.join("|"), "writes");
}

void EditComboItemDelegateTest::writesATextThatTheListDoesNotHold()
{
    EditorFixture fixture("editcombobox");
    fixture.view.bindModel(0, colours(&fixture.view));
    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0));
    QVERIFY(box);
    QTest::keyClicks(box, "pink"); // the Return key would add it to the list

    const QModelIndex cell = fixture.model.index(0, 0);
    fixture.view.itemDelegateForColumn(0)->setModelData(box, &fixture.model, cell);

    QCOMPARE(box->count(), 3);
    QCOMPARE(fixture.model.writes, QStringList("edit pink"));
}

void EditComboItemDelegateTest::canBeBoundAsACombo()
{
    EditorFixture fixture("editcombobox");

    fixture.view.bindModel(3, colours(&fixture.view));

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(1, 3));
    QVERIFY(box);
    QCOMPARE(box->count(), 3);
}

void EditComboItemDelegateTest::leavesAForeignEditorAlone()
{
    verifyLeavesForeignEditorAlone("editcombobox");
}

TESSALINE_TEST_MAIN(EditComboItemDelegateTest)
#include "tst_editcomboitemdelegate.moc"
