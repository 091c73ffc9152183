// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditorFixture.h"

#include "TestCompat.h"
#include "ViewHelpers.h"

#include <QAbstractItemDelegate>
#include <QAccessible>
#include <QLabel>

EditorFixture::EditorFixture(const QString &declaration)
    : model(2, 4)
{
    view.setColumns(QStringList() << declaration << declaration << declaration << declaration);
    view.setModel(&model);
    showWindow(&view, 480, 200);
}

QWidget *EditorFixture::open(int row, int column, const QVariant &stored)
{
    model.put(row, column, stored);
    QWidget *editor = openEditor(&view, model.index(row, column));
    model.writes.clear();
    return editor;
}

QVariant EditorFixture::cell(int row, int column, int role) const
{
    return model.index(row, column).data(role);
}

void verifyDressed(EditorFixture *fixture, QWidget *editor, int row, int column,
                   const QString &description)
{
    QVERIFY(editor);
    QCOMPARE(editor->parentWidget(), fixture->view.viewport());
    QCOMPARE(editor->accessibleDescription(), description);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(editor);
    QVERIFY(accessible);
    QCOMPARE(compat::accessibleDescription(accessible), description);
    QVERIFY(editor->autoFillBackground());
    QCOMPARE(editor->geometry(), fixture->view.visualRect(fixture->model.index(row, column)));
}

void verifyLeavesForeignEditorAlone(const QString &declaration)
{
    EditorFixture fixture(declaration);
    fixture.model.put(0, 0, QString::fromLatin1("kept"));
    QLabel foreign(QString::fromLatin1("foreign"));
    QAbstractItemDelegate *delegate = fixture.view.itemDelegateForColumn(0);

    delegate->setEditorData(&foreign, fixture.model.index(0, 0));
    delegate->setModelData(&foreign, &fixture.model, fixture.model.index(0, 0));
    delegate->setModelData(nullptr, &fixture.model, fixture.model.index(0, 0));

    QCOMPARE(foreign.text(), QString::fromLatin1("foreign"));
    QCOMPARE(fixture.model.writes, QStringList());
    QCOMPARE(fixture.cell(0, 0).toString(), QString::fromLatin1("kept"));
}
