// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "CellEditor.h"
#include "EditableTableView.h"
#include "GridMonkey.h"
#include "QtCompat.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStringListModel>

namespace {

const int mostDeclarations = 7;
const int secretRole = Qt::UserRole + 1;

struct Kind
{
    const char *declaration;
    const char *delegate; ///< Null for a plain column.
    bool isButton;
};

const Kind kinds[] = {{"combobox", "ComboItemDelegate", false},
                      {"editcombobox", "EditComboItemDelegate", false},
                      {"editbox", "EditItemDelegate", false},
                      {" EditBox ", "EditItemDelegate", false},
                      {"passwordbox", "PasswordItemDelegate", false},
                      {"checkbox:Verify", "CheckItemDelegate", false},
                      {"button:Go", nullptr, true},
                      {"BUTTON : L\xf6schen:%1", nullptr, true},
                      {"", nullptr, false},
                      {"nonsense:button", nullptr, false}};
const int kindCount = sizeof(kinds) / sizeof(kinds[0]);

/// Tells what only derived classes may know.
class OpenTable : public EditableTableView
{
public:
    bool isHeldBack() const
    {
        return state() == CollapsingState;
    }
};

} // namespace

/// Plays with an editable table, and keeps by other means where its buttons should be.
class EditableTableMonkey : public GridMonkey
{
    Q_OBJECT

public:
    explicit EditableTableMonkey(quint32 seed);
    ~EditableTableMonkey() override;

protected:
    QTableView *table() const override;
    void look() override;

private Q_SLOTS:
    void noteRows(const QModelIndex &parent, int start);
    void noteReset();
    void noteWrite(const QModelIndex &cell);
    void noteClick(QWidget *button, int row, int column, const QStringList &rowData);

private:
    void declareColumns();
    void bindList();
    void replaceModel();
    void showSorted();
    void setModelAgain();
    void takeModelAway();
    void deleteModel();
    void replaceView();

    void openEditor();
    void openPersistentEditor();
    void closePersistentEditor();
    void finishEditor();
    void cancelEditor();
    void editAndLook();
    void moveColumnsBelowASecret();
    void clickButton();
    void chooseReaction();

    void setStretchSection();
    void resizeAndLook();
    void resizeSectionAndLook();
    void dragSectionAndLook();

    void show(QAbstractItemModel *model);
    void react(int row);
    void expectButton(int row, int column);
    void lookAtButtons();
    void lookAtDelegates();
    void lookAtSecrets();
    void lookAtWrites();
    void lookAtNeighbours(int resized, const QList<int> &before);
    const Kind *kindOf(int column) const;
    QList<int> sizes() const;
    int absorberOf(int section) const;

    QPointer<OpenTable> view;
    QSortFilterProxyModel *proxy;
    QPointer<QStringListModel> list;
    QList<int> declared; ///< By kind.
    QList<QPersistentModelIndex> withButton;
    int reaction;
    bool isReacting;
    bool mayRemove; ///< Qt itself dies of cells and editors that vanish in the midst of other
                    ///< changes.
    int clicks;
};

EditableTableMonkey::EditableTableMonkey(quint32 seed)
    : GridMonkey(seed)
    , proxy(nullptr)
    , reaction(0)
    , isReacting(false)
    , mayRemove(false)
    , clicks(0)
{
    replaceView();

    canUseTheTable();
    canChangeTheGrid();
    can(15, "declareColumns", &EditableTableMonkey::declareColumns);
    can(15, "bindList", &EditableTableMonkey::bindList);
    can(10, "replaceModel", &EditableTableMonkey::replaceModel);
    can(3, "showSorted", &EditableTableMonkey::showSorted);
    can(3, "setModelAgain", &EditableTableMonkey::setModelAgain);
    can(2, "takeModelAway", &EditableTableMonkey::takeModelAway);
    can(4, "deleteModel", &EditableTableMonkey::deleteModel);
    can(2, "replaceView", &EditableTableMonkey::replaceView);
    can(60, "openEditor", &EditableTableMonkey::openEditor);
    can(10, "openPersistentEditor", &EditableTableMonkey::openPersistentEditor);
    can(10, "closePersistentEditor", &EditableTableMonkey::closePersistentEditor);
    can(50, "finishEditor", &EditableTableMonkey::finishEditor);
    can(20, "cancelEditor", &EditableTableMonkey::cancelEditor);
    can(20, "editAndLook", &EditableTableMonkey::editAndLook);
    can(20, "moveColumnsBelowASecret", &EditableTableMonkey::moveColumnsBelowASecret);
    can(40, "clickButton", &EditableTableMonkey::clickButton);
    can(20, "chooseReaction", &EditableTableMonkey::chooseReaction);
    can(10, "setStretchSection", &EditableTableMonkey::setStretchSection);
    can(15, "resizeAndLook", &EditableTableMonkey::resizeAndLook);
    can(20, "resizeSectionAndLook", &EditableTableMonkey::resizeSectionAndLook);
    can(40, "dragSectionAndLook", &EditableTableMonkey::dragSectionAndLook);
}

EditableTableMonkey::~EditableTableMonkey()
{
    delete view;
    delete list;
}

QTableView *EditableTableMonkey::table() const
{
    return view;
}

void EditableTableMonkey::look()
{
    expect(!view->isHeldBack(), "the layout is held back for good");
    lookAtButtons();
    lookAtDelegates();
    lookAtSecrets();
    lookAtWrites();
}

// What the application hears

void EditableTableMonkey::noteRows(const QModelIndex &parent, int start)
{
    for (int column = 0; !parent.isValid() && column < declared.size(); ++column) {
        if (kindOf(column)->isButton) {
            expectButton(start, column);
        }
    }
}

void EditableTableMonkey::noteReset()
{
    withButton.clear();
}

void EditableTableMonkey::noteWrite(const QModelIndex &cell)
{
    react(cell.row());
}

void EditableTableMonkey::noteClick(QWidget *button, int row, int column,
                                    const QStringList &rowData)
{
    ++clicks;
    expect(button && view->button(row, column) == button, "a click from elsewhere");
    QStringList texts;
    for (int i = 0; i < declared.size(); ++i) {
        if (kindOf(i)->delegate) {
            texts.append(view->model()->index(row, i).data(Qt::EditRole).toString());
        }
    }
    expectEqual(rowData, texts, "texts of a click");
    react(row);
}

// What the application does

void EditableTableMonkey::declareColumns()
{
    QList<int> chosen;
    QStringList declarations;
    for (int left = dice.below(mostDeclarations); left > 0; --left) {
        chosen.append(dice.below(kindCount));
        declarations.append(QString::fromLatin1(kinds[chosen.last()].declaration));
    }
    view->setColumns(declarations);
    declared = chosen; // only now: what is committed may bring about other declarations before
    expectEqual(view->getColumns(), declarations, "declarations");
}

void EditableTableMonkey::bindList()
{
    if (list && dice.oneIn(3)) {
        delete list;
    }
    if (!list) {
        list = new QStringListModel(QStringList() << "a"
                                                  << "b");
    }
    view->bindModel(dice.between(-1, mostDeclarations), list, dice.between(-1, 1));
}

// The old model goes later: it may be the one that called.
void EditableTableMonkey::replaceModel()
{
    if (grid) {
        grid->deleteLater();
    }
    grid = createGrid();
    show(grid);
}

void EditableTableMonkey::showSorted()
{
    if (grid) {
        QSortFilterProxyModel *former = proxy;
        proxy = new QSortFilterProxyModel(this);
        proxy->setSourceModel(grid);
        proxy->setDynamicSortFilter(dice.oneIn(2));
        proxy->sort(dice.below(2));
        show(proxy);
        delete former;
    }
}

void EditableTableMonkey::setModelAgain()
{
    if (view->model()) {
        show(view->model());
    }
}

void EditableTableMonkey::takeModelAway()
{
    show(nullptr);
}

void EditableTableMonkey::deleteModel()
{
    if (view->model() == grid) {
        compat::deleteModel(grid, view);
    }
}

void EditableTableMonkey::replaceView()
{
    if (view) {
        show(nullptr);
    }
    delete view;
    view = new OpenTable;
    connect(view,
            SIGNAL(buttonClicked(QWidget*,int,int,QStringList)),
                   SLOT(noteClick(QWidget*,int,int,QStringList)));
    declareColumns();
    replaceModel();
    showWindow(view, 400, 200);
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
    const Kind *kind = cell.isValid() ? kindOf(cell.column()) : nullptr;
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

// Sections

void EditableTableMonkey::setStretchSection()
{
    view->setStretchSection(dice.between(-1, 7));
}

void EditableTableMonkey::resizeAndLook()
{
    const int width = dice.between(1, 700);
    view->resize(width + 50, 150);
    goThroughEvents();
    view->resize(width, 150);
    goThroughEvents();
    goThroughEvents();
    const int section = view->getStretchSection();
    if (!view->model() || section < 0 || section >= columnCount()
        || header()->isSectionHidden(section)) {
        return;
    }
    int total = 0;
    for (const int size : sizes()) {
        total += size;
    }
    const bool isFloored = header()->sectionSize(section) == 20 && total > header()->width();
    // Qt 6 may count a hidden section in the header's length, and then scroll bars come and go.
    const bool isConsistent = header()->hiddenSectionCount() == 0 || header()->length() == total;
    expect(!isConsistent || isFloored || total == header()->width(),
           "the sections do not fill the view");
}

void EditableTableMonkey::resizeSectionAndLook()
{
    const QList<int> before = sizes();
    const int minimum = header()->minimumSectionSize();
    const int section = dice.below(header()->count() + 1);
    const int size = dice.between(0, 150);
    view->resizeSection(section, size);
    for (int i = 0; i < before.size(); ++i) {
        const bool isResized = i == section && !header()->isSectionHidden(i);
        expectEqual(header()->sectionSize(i), isResized ? size : before.at(i), "resized section");
    }
    expectEqual(header()->minimumSectionSize(), minimum, "minimum of the user's mouse");
}

// Alternately as an application does it and as a user does.
void EditableTableMonkey::dragSectionAndLook()
{
    const QList<int> before = sizes();
    const int section = dice.below(header()->count());
    if (before.isEmpty() || !view->model() || header()->isSectionHidden(section)) {
        return;
    }
    header()->resizeSection(section, dice.between(0, 200));
    lookAtNeighbours(section, before);
}

// How it is done, and what to look at

void EditableTableMonkey::show(QAbstractItemModel *model)
{
    QList<QPersistentModelIndex> free;
    QList<QPersistentModelIndex> edited; // of which some may get free now
    const bool isNew = model != view->model();
    for (int row = 0; model && row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex cell = model->index(row, column);
            const Kind *kind = kindOf(column);
            if (kind && kind->isButton && !(buttonAt(cell) && !isNew)) {
                const bool isFree = isNew || !view->indexWidget(cell);
                (isFree ? free : edited).append(cell);
            }
        }
    }
    if (isNew) {
        withButton.clear();
        if (view->model()) {
            disconnect(view->model(), nullptr, this, nullptr);
        }
    }
    view->setModel(model);
    if (model && isNew) {
        connect(model, SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(noteRows(QModelIndex,int)));
        connect(model, SIGNAL(modelReset()), SLOT(noteReset()));
        connect(model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(noteWrite(QModelIndex)));
    }
    withButton += free;
    for (const QPersistentModelIndex &cell : edited) {
        if (buttonAt(cell)) {
            withButton.append(cell);
        }
    }
}

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

void EditableTableMonkey::expectButton(int row, int column)
{
    const QPersistentModelIndex cell = view->model()->index(row, column);
    if (cell.isValid()) {
        withButton.append(cell);
    }
}

void EditableTableMonkey::lookAtButtons()
{
    int expected = 0;
    for (int i = static_cast<int>(withButton.size()) - 1; i >= 0; --i) {
        if (!withButton.at(i).isValid()) {
            withButton.removeAt(i);
        } else {
            ++expected;
            expect(buttonAt(withButton.at(i)), "a button is missing");
        }
    }
    expectEqual(static_cast<int>(buttonsInCells().size()), expected, "buttons");
}

void EditableTableMonkey::lookAtDelegates()
{
    for (int column = 0; column < mostDeclarations; ++column) {
        const Kind *kind = kindOf(column);
        const QAbstractItemDelegate *delegate = view->itemDelegateForColumn(column);
        const char *name = delegate ? delegate->metaObject()->className() : nullptr;
        expectEqual(QString::fromLatin1(name), QString::fromLatin1(kind ? kind->delegate : nullptr),
                    "delegate");
    }
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

// Only Qt's own delegate, that of plain columns, takes a cell of the former model for one of this.
void EditableTableMonkey::lookAtWrites()
{
    const int column = grid ? grid->takeForeignColumn() : -1;
    const Kind *kind = column < 0 ? nullptr : kindOf(column);
    expect(!kind || !kind->delegate, "a cell of another model was written");
}

void EditableTableMonkey::lookAtNeighbours(int resized, const QList<int> &before)
{
    const QList<int> after = sizes();
    const int absorber = absorberOf(resized);
    if (after == before || header()->isSectionHidden(absorber)) {
        return;
    }
    int others = 0;
    for (int i = 0; i < after.size(); ++i) {
        others += i == absorber ? 0 : after.at(i);
        if (i != resized && i != absorber) {
            expectEqual(after.at(i), before.at(i), "uninvolved section");
        }
    }
    if (absorber >= 0) {
        expectEqual(after.at(absorber), qMax(20, header()->width() - others), "neighbour");
    }
}

const Kind *EditableTableMonkey::kindOf(int column) const
{
    return column < declared.size() ? &kinds[declared.at(column)] : nullptr;
}

QList<int> EditableTableMonkey::sizes() const
{
    QList<int> result;
    for (int section = 0; section < header()->count(); ++section) {
        result.append(header()->sectionSize(section));
    }
    return result;
}

// The neighbour is a logical index that is then taken for a place.
int EditableTableMonkey::absorberOf(int section) const
{
    if (section >= columnCount() - 1) {
        return -1;
    }
    const bool isFixed = compat::sectionResizeMode(header(), section + 1) == QHeaderView::Fixed;
    return header()->logicalIndex(qMax(0, isFixed ? section - 1 : section + 1));
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
