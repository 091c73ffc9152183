// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "ColumnMonkey.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>

namespace {

const int secretRole = Qt::UserRole + 1;

} // namespace

/// Plays with an editable table: edits its cells, clicks its buttons, and has the application
/// answer what it hears with something else.
class EditableTableMonkey : public ColumnMonkey
{
public:
    explicit EditableTableMonkey(quint32 seed);
    ~EditableTableMonkey() override;

protected:
    void look() override;

private:
    void openEditor();
    void openPersistentEditor();
    void closePersistentEditor();
    void finishEditor();
    void cancelEditor();
    void editAndLook();
    void moveColumnsBelowASecret();
    void clickButton();
    void chooseReaction();

    void react(int row) override;
    void lookAtSecrets();

    int reaction;
    bool isReacting;
    bool mayRemove; ///< Qt itself dies of cells and editors that vanish in the midst of other
                    ///< changes.
};

EditableTableMonkey::EditableTableMonkey(quint32 seed)
    : ColumnMonkey(seed)
    , reaction(0)
    , isReacting(false)
    , mayRemove(false)
{
    replaceView();

    canUseTheTable();
    canChangeTheGrid();
    canDeclareColumns();
    can(60, "openEditor", &EditableTableMonkey::openEditor);
    can(10, "openPersistentEditor", &EditableTableMonkey::openPersistentEditor);
    can(10, "closePersistentEditor", &EditableTableMonkey::closePersistentEditor);
    can(50, "finishEditor", &EditableTableMonkey::finishEditor);
    can(20, "cancelEditor", &EditableTableMonkey::cancelEditor);
    can(20, "editAndLook", &EditableTableMonkey::editAndLook);
    can(20, "moveColumnsBelowASecret", &EditableTableMonkey::moveColumnsBelowASecret);
    can(40, "clickButton", &EditableTableMonkey::clickButton);
    can(20, "chooseReaction", &EditableTableMonkey::chooseReaction);
    canResizeSections();
}

EditableTableMonkey::~EditableTableMonkey()
{
    delete view;
}

void EditableTableMonkey::look()
{
    expect(!view->isHeldBack(), "the layout is held back for good");
    lookAtButtons();
    lookAtDelegates();
    lookAtSecrets();
    lookAtWrites();
}

void EditableTableMonkey::openEditor()
{
    makeCurrent();
    sendKey(view, Qt::Key_F2);
}

void EditableTableMonkey::openPersistentEditor()
{
    const QModelIndex cell = anyCell();
    if (cell.isValid() && !view->indexWidget(cell)) {
        view->openPersistentEditor(cell);
    }
}

void EditableTableMonkey::closePersistentEditor()
{
    const QModelIndex cell = anyCell();
    if (cell.isValid() && !buttonAt(cell)) {
        view->closePersistentEditor(cell);
    }
}

void EditableTableMonkey::finishEditor()
{
    sendKey(keyboardTarget(), dice.oneIn(3) ? Qt::Key_Tab : Qt::Key_Return);
    if (dice.oneIn(2)) {
        mayRemove = true;
        goThroughEvents();
        mayRemove = false;
    }
}

void EditableTableMonkey::cancelEditor()
{
    sendKey(keyboardTarget(), Qt::Key_Escape);
}

void EditableTableMonkey::editAndLook()
{
    const QPersistentModelIndex cell = anyCell();
    const ColumnKind *kind = cell.isValid() ? kindOf(cell.column()) : nullptr;
    if (!kind || !kind->delegate || view->indexWidget(cell)) {
        return;
    }
    reaction = 0;
    makeCurrent(cell);
    sendKey(view, Qt::Key_F2);
    QLineEdit *field = qobject_cast<QLineEdit *>(view->indexWidget(cell));
    if (!field) {
        return;
    }
    const bool isSecret = field->echoMode() == QLineEdit::Password;
    const QString text(dice.between(1, 3), QLatin1Char(isSecret ? secretKey : 'c'));
    field->selectAll();
    typeInto(field, text);
    sendKey(field, Qt::Key_Return);
    goThroughEvents();
    expectEqual(cell.data(isSecret ? secretRole : Qt::EditRole).toString(), text, "edited text");
}

void EditableTableMonkey::moveColumnsBelowASecret()
{
    int column = 0;
    while (column < declared.size() && qstrcmp(kindOf(column)->declaration, "passwordbox") != 0) {
        ++column;
    }
    const int row = dice.below(rowCount());
    if (!view->model() || view->indexWidget(view->model()->index(row, column))) {
        return;
    }
    const QPersistentModelIndex cell = view->model()->index(row, column);
    makeCurrent(cell);
    sendKey(view, Qt::Key_F2);
    const QPointer<QWidget> field = view->indexWidget(cell);
    if (dice.oneIn(2)) {
        insertColumn();
    } else {
        removeColumn();
    }
    if (field && field->isEnabled()) { // one that was given up leaves its keys to the table
        typeInto(field);
        sendKey(field, Qt::Key_Return);
    }
}

void EditableTableMonkey::clickButton()
{
    goThroughEvents(); // a layout that the press brings about might move the button away
    const QList<CellButton *> buttons = buttonsInCells();
    CellButton *button = buttons.isEmpty() ? nullptr : dice.oneOf(buttons);
    if (button && button->isVisible() && !button->size().isEmpty()) {
        const int before = clicks;
        const bool isQuiet = reaction == 0;
        mayRemove = true;
        clickOn(button);
        mayRemove = false;
        expect(!isQuiet || clicks == before + 1, "a click was not reported once");
    }
}

void EditableTableMonkey::chooseReaction()
{
    reaction = qMax(0, dice.between(-5, 7)); // as often as not, none
}

// How it is done, and what to look at

void EditableTableMonkey::react(int row)
{
    if (isReacting || !dice.oneIn(3)) {
        return;
    }
    isReacting = true;
    const bool isPlain = grid && view->model() == grid && !grid->isChanging(); // no proxy
    if (reaction == 1) {
        declareColumns();
    } else if (reaction == 2 && mayRemove && compat::editorsOutliveNestedLoops) {
        QCoreApplication::processEvents();
    } else if (reaction == 3 && isPlain && mayRemove && row >= 0 && row < grid->rowCount()) {
        grid->removeRows(row, 1);
    } else if (reaction == 4 && isPlain) {
        insertRows();
    } else if (reaction == 5 && isPlain) {
        sortRows();
    } else if (reaction == 6 && isPlain && mayRemove) {
        startAnew();
    } else if (reaction == 7 && isPlain && mayRemove) {
        replaceModel();
    }
    isReacting = false;
}

void EditableTableMonkey::lookAtSecrets()
{
    for (int row = 0; grid && row < grid->rowCount(); ++row) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            const QString text = grid->index(row, column).data(Qt::EditRole).toString();
            expect(!text.contains(QLatin1Char(secretKey)), "a secret can be read");
        }
    }
}

class EditableTableMonkeyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survivesAMonkey_data();
    void survivesAMonkey();
};

void EditableTableMonkeyTest::survivesAMonkey_data()
{
    addMonkeyRounds();
}

void EditableTableMonkeyTest::survivesAMonkey()
{
    tolerateWarnings("QItemSelectionModel: "); // on a click when the model is deleted
    // Qt's delegate of plain columns offers a new model what was typed for the one before.
    tolerateWarnings("QSortFilterProxyModel: index from wrong model");
    // What Qt 6 says when a row goes below an editor, and of its own editor in a narrow cell.
    tolerateWarnings("QAbstractItemView::");
    tolerateWarnings("QWidget::setMaximumSize: (/QExpandingLineEdit)");
    tolerateWarnings("edit: editing failed"); // when a key would open a second editor
    tolerateWarnings("QPainter::"); // what Qt 6.11 says of a combo box in a narrow cell
    playMonkeyRound<EditableTableMonkey>();
}

TESSALINE_TEST_MAIN(EditableTableMonkeyTest)
#include "tst_editabletablemonkey.moc"
