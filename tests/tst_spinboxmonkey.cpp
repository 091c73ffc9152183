// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpinBox.h"
#include "TestCase.h"
#include "TestCompat.h"
#include "ViewHelpers.h"
#include "WidgetMonkey.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

/// Counts how often the spin box's own handling passes the focus on to its text.
class NotingField : public QLineEdit
{
public:
    explicit NotingField(int *counter)
        : focusIns(counter)
    {
    }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        ++*focusIns;
        QLineEdit::focusInEvent(event);
    }

private:
    int *const focusIns;
};

/// Lets its text field be exchanged.
class OpenSpinBox : public SpinBox
{
public:
    using SpinBox::setLineEdit;
};

bool isMadeByUser(const QEvent *event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason
        || reason == Qt::BacktabFocusReason;
}

} // namespace

/// Plays with a spin box between two fields.
class SpinBoxMonkey : public WidgetMonkey
{
    Q_OBJECT

public:
    explicit SpinBoxMonkey(quint32 seed);

protected:
    QWidget *window() const override;
    void look() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void reactToFocus();

private:
    void giveFocus();
    void sendFocus();
    void setBounds();
    void setValue();
    void setTexts();
    void setBehavior();
    void replaceField();
    void replaceBox();
    void chooseReaction();
    void enter();

    QWidget form;
    QVBoxLayout *layout;
    QPointer<OpenSpinBox> box;
    int userFocusIns;
    int announcements;
    int baseFocusIns;
    int reaction;
};

SpinBoxMonkey::SpinBoxMonkey(quint32 seed)
    : WidgetMonkey(seed)
    , layout(new QVBoxLayout(&form))
    , userFocusIns(0)
    , announcements(0)
    , baseFocusIns(0)
    , reaction(0)
{
    layout->addWidget(new QLineEdit);
    layout->addWidget(new QLineEdit);
    replaceBox();
    showWindow(&form, 200, 150);

    canUseTheWindow();
    can(150, "giveFocus", &SpinBoxMonkey::giveFocus);
    can(100, "sendFocus", &SpinBoxMonkey::sendFocus);
    can(40, "setBounds", &SpinBoxMonkey::setBounds);
    can(40, "setValue", &SpinBoxMonkey::setValue);
    can(30, "setTexts", &SpinBoxMonkey::setTexts);
    can(30, "setBehavior", &SpinBoxMonkey::setBehavior);
    can(5, "replaceField", &SpinBoxMonkey::replaceField);
    can(3, "replaceBox", &SpinBoxMonkey::replaceBox);
    can(10, "chooseReaction", &SpinBoxMonkey::chooseReaction);
    can(40, "enter", &SpinBoxMonkey::enter);
}

QWidget *SpinBoxMonkey::window() const
{
    return const_cast<QWidget *>(&form);
}

void SpinBoxMonkey::look()
{
    expectEqual(announcements, userFocusIns, "announced focus");
    expectEqual(baseFocusIns, userFocusIns, "focus that the base class learned of");
    expect(box->value() >= box->minimum() && box->value() <= box->maximum(), "value out of range");
}

// What arrives is counted before the spin box sees it.
bool SpinBoxMonkey::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && isMadeByUser(event)) {
        ++userFocusIns;
    }
    return false;
}

void SpinBoxMonkey::reactToFocus()
{
    ++announcements;
    switch (reaction) {
    case 1:
        box->setValue(dice.below(100));
        break;
    case 2:
        box->clearFocus();
        break;
    case 3:
        box->selectAll();
        break;
    case 4:
        box->hide();
        box->show();
        break;
    case 5:
        box->setReadOnly(!box->isReadOnly());
        break;
    default:
        break;
    }
}

void SpinBoxMonkey::giveFocus()
{
    const Qt::FocusReason reason = static_cast<Qt::FocusReason>(dice.below(8));
    compat::activate(&form);
    form.setFocus();
    box->setFocus(reason);
}

void SpinBoxMonkey::sendFocus()
{
    const QEvent::Type type = dice.oneIn(3) ? QEvent::FocusOut : QEvent::FocusIn;
    QFocusEvent event(type, static_cast<Qt::FocusReason>(dice.below(8)));
    QApplication::sendEvent(box, &event);
}

void SpinBoxMonkey::setBounds()
{
    const int lowest = dice.oneIn(5) ? -2147483647 - 1 : dice.between(-50, 50);
    const int highest = dice.oneIn(5) ? 2147483647 : dice.between(-50, 150);
    box->setRange(lowest, highest);
}

void SpinBoxMonkey::setValue()
{
    box->setValue(dice.between(-100, 200));
}

void SpinBoxMonkey::setTexts()
{
    const QStringList texts = QStringList() << QString() << "kB"
                                            << "<b>"
                                            << " %1 ";
    box->setPrefix(dice.oneOf(texts));
    box->setSuffix(dice.oneOf(texts));
    box->setSpecialValueText(dice.oneOf(texts));
}

void SpinBoxMonkey::setBehavior()
{
    box->setWrapping(dice.oneIn(2));
    box->setKeyboardTracking(dice.oneIn(2));
    box->setReadOnly(dice.oneIn(4));
    box->setSingleStep(dice.below(1000));
    box->setButtonSymbols(static_cast<QAbstractSpinBox::ButtonSymbols>(dice.below(3)));
}

// QAbstractSpinBox can't do without a field that has the focus.
void SpinBoxMonkey::replaceField()
{
    box->clearFocus();
    box->setLineEdit(new NotingField(&baseFocusIns));
}

void SpinBoxMonkey::replaceBox()
{
    delete box;
    box = new OpenSpinBox;
    replaceField();
    layout->insertWidget(1, box);
    box->installEventFilter(this);
    connect(box, SIGNAL(focused()), SLOT(reactToFocus()));
}

void SpinBoxMonkey::chooseReaction()
{
    reaction = dice.below(8); // more often than not, none
}

void SpinBoxMonkey::enter()
{
    box->setReadOnly(false);
    box->setRange(0, 99999);
    box->setPrefix(QString());
    box->setSuffix(QString());
    box->setValue(0);
    box->selectAll();
    const int number = dice.between(1, 99999);
    typeInto(box, QString::number(number));
    sendKey(box, Qt::Key_Return);
    expectEqual(box->value(), number, "entered value");
}

class SpinBoxMonkeyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survivesAMonkey_data();
    void survivesAMonkey();
};

void SpinBoxMonkeyTest::survivesAMonkey_data()
{
    addMonkeyRounds();
}

void SpinBoxMonkeyTest::survivesAMonkey()
{
    tolerateWarnings("QLineEdit::setSelection"); // QSpinBox, of a text shorter than its suffix
    playMonkeyRound<SpinBoxMonkey>();
}

TESSALINE_TEST_MAIN(SpinBoxMonkeyTest)
#include "tst_spinboxmonkey.moc"
