// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WidgetMonkey.h"

#include "ViewHelpers.h"

#include <QApplication>
#include <QColor>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

#include <limits>

namespace {

const Qt::Key keys[]
    = {Qt::Key_Left,     Qt::Key_Right, Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Home,
       Qt::Key_End,      Qt::Key_F2,    Qt::Key_Return,    Qt::Key_Escape, Qt::Key_Tab,
       Qt::Key_Space,    Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_PageUp,
       Qt::Key_PageDown, Qt::Key_A,     Qt::Key_Backtab,   Qt::Key_F4};

const Qt::KeyboardModifier modifierKeys[]
    = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};

const Qt::FocusReason focusReasons[]
    = {Qt::MouseFocusReason,        Qt::TabFocusReason,   Qt::BacktabFocusReason,
       Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::ShortcutFocusReason,
       Qt::MenuBarFocusReason,      Qt::OtherFocusReason};

template <class Value, int Count> Value oneOf(Dice *dice, const Value (&values)[Count])
{
    return values[dice->below(Count)];
}

// Not every toolkit has every style.
void useStyle(const char *name)
{
    if (QStyle *style = QStyleFactory::create(QLatin1String(name))) {
        QApplication::setStyle(style);
        QApplication::setPalette(style->standardPalette());
    }
}

bool isPasswordField(const QWidget *widget)
{
    const QLineEdit *field = qobject_cast<const QLineEdit *>(widget);
    return field && field->echoMode() == QLineEdit::Password;
}

// As Qt Test does it, but without a line in the log for each event that nobody wanted.
void deliver(const QPointer<QWidget> &widget, QInputEvent *event)
{
    if (widget) {
        QSpontaneKeyEvent::setSpontaneous(event);
        qApp->notify(widget, event);
    }
}

void sendMouse(const QPointer<QWidget> &widget, QEvent::Type type, const QPoint &place,
               Qt::MouseButton button, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    if (widget) {
        const bool isMove = type == QEvent::MouseMove;
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, widget->mapToGlobal(place), isMove ? Qt::NoButton : button,
                          isUp ? Qt::NoButton : button, modifiers);
        deliver(widget, &event);
    }
}

void sendClick(const QPointer<QWidget> &widget, const QPoint &place, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, QEvent::MouseButtonPress, place, button, modifiers);
    sendMouse(widget, QEvent::MouseButtonRelease, place, button, modifiers);
}

} // namespace

QString MarkingTranslator::find(const QByteArray &, const QByteArray &source) const
{
    return QLatin1Char('<') + QString::fromLatin1(source.constData()) + QLatin1Char('>');
}

WidgetMonkey::WidgetMonkey(quint32 seed)
    : Monkey(seed)
    , translated(false)
    , initialFont(QApplication::font())
{
    // What goes by the clock would not come again with the same seed.
    QApplication::setDoubleClickInterval(0);
    QApplication::setKeyboardInputInterval(std::numeric_limits<int>::max());
    QApplication::setCursorFlashTime(0);
    useStyle("windows");
}

WidgetMonkey::~WidgetMonkey()
{
    QApplication::setFont(initialFont);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCoreApplication::removeTranslator(&translator);
    goThroughEvents(); // nothing is left for the next round
}

void WidgetMonkey::canUseTheWindow()
{
    can(30, "resizeWindow", &WidgetMonkey::resizeWindow);
    can(120, "pressKey", &WidgetMonkey::pressKey);
    can(60, "typeText", &WidgetMonkey::typeText);
    can(80, "click", &WidgetMonkey::click);
    can(30, "doubleClick", &WidgetMonkey::doubleClick);
    can(30, "drag", &WidgetMonkey::drag);
    can(20, "turnWheel", &WidgetMonkey::turnWheel);
    can(30, "moveFocus", &WidgetMonkey::moveFocus);
    can(3, "hideAndShow", &WidgetMonkey::hideAndShow);
    can(5, "disableForAWhile", &WidgetMonkey::disableForAWhile);
    can(20, "closePopup", &WidgetMonkey::closePopup);
    can(60, "handleEvents", &WidgetMonkey::handleEvents);
    can(1, "grab", &WidgetMonkey::grab);
    can(1, "changeStyle", &WidgetMonkey::changeStyle);
    can(1, "changePalette", &WidgetMonkey::changePalette);
    can(2, "changeFont", &WidgetMonkey::changeFont);
    can(2, "changeLanguage", &WidgetMonkey::changeLanguage);
    can(1, "changeDirection", &WidgetMonkey::changeDirection);
}

void WidgetMonkey::resizeWindow()
{
    const int hugeSide = 4000;
    const bool isTiny = dice.oneIn(8);
    const bool isHuge = dice.oneIn(40);
    const int width = isHuge && dice.oneIn(2) ? hugeSide : isTiny ? 1 : dice.between(1, 500);
    const int height = isHuge ? hugeSide : isTiny ? 1 : dice.between(1, 250);
    window()->resize(width, height);
}

void WidgetMonkey::pressKey()
{
    const Qt::Key key = oneOf(&dice, keys);
    sendKey(keyboardTarget(), key, oneOf(&dice, modifierKeys));
}

void WidgetMonkey::typeText()
{
    for (int left = dice.between(1, 3); left > 0; --left) {
        typeInto(keyboardTarget());
    }
}

void WidgetMonkey::click()
{
    const Hit target = hit();
    const Qt::MouseButton button = dice.oneIn(8) ? Qt::RightButton : Qt::LeftButton;
    sendClick(target.widget, target.place, button, oneOf(&dice, modifierKeys));
}

void WidgetMonkey::doubleClick()
{
    const Hit target = hit();
    sendClick(target.widget, target.place, Qt::LeftButton, Qt::NoModifier);
    sendMouse(target.widget, QEvent::MouseButtonDblClick, target.place, Qt::LeftButton);
    sendMouse(target.widget, QEvent::MouseButtonRelease, target.place, Qt::LeftButton);
}

void WidgetMonkey::drag()
{
    const Hit target = hit();
    const QPoint way(dice.between(-60, 60), dice.between(-60, 60));
    dragIn(target.widget, target.place, target.place + way);
}

void WidgetMonkey::turnWheel()
{
    const Hit target = hit();
    compat::turnWheel(target.widget, target.place, dice.oneIn(2) ? 120 : -120);
}

void WidgetMonkey::moveFocus()
{
    compat::activate(window());
    QWidgetList widgets(QWidgetList() << window());
    const QList<QWidget *> children = window()->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->isVisible() && child->focusPolicy() != Qt::NoFocus) {
            widgets.append(child);
        }
    }
    dice.oneOf(widgets)->setFocus(oneOf(&dice, focusReasons));
}

void WidgetMonkey::hideAndShow()
{
    window()->hide();
    if (dice.oneIn(2)) {
        handleEvents();
    }
    window()->show();
    compat::activate(window());
}

void WidgetMonkey::disableForAWhile()
{
    window()->setEnabled(false);
    click();
    pressKey();
    window()->setEnabled(true);
}

void WidgetMonkey::closePopup()
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        popup->close();
    }
}

void WidgetMonkey::handleEvents()
{
    goThroughEvents();
}

void WidgetMonkey::grab()
{
    if (window()->width() < 1000 && window()->height() < 1000) {
        compat::grab(window());
    }
}

void WidgetMonkey::changeStyle()
{
    useStyle(dice.oneIn(2) ? "windows" : "fusion");
}

void WidgetMonkey::changePalette()
{
    const QPalette palette(QColor::fromRgb(static_cast<QRgb>(dice.below(0x1000000))));
    if (dice.oneIn(4)) {
        QApplication::setPalette(palette);
    } else {
        window()->setPalette(palette);
    }
}

void WidgetMonkey::changeFont()
{
    QFont font = initialFont;
    font.setPointSize(dice.between(1, 30));
    if (dice.oneIn(4)) {
        QApplication::setFont(font);
    } else {
        window()->setFont(font);
    }
}

void WidgetMonkey::changeLanguage()
{
    if (translated) {
        QCoreApplication::removeTranslator(&translator);
    } else {
        QCoreApplication::installTranslator(&translator);
    }
    translated = !translated;
}

void WidgetMonkey::changeDirection()
{
    QApplication::setLayoutDirection(dice.oneIn(2) ? Qt::RightToLeft : Qt::LeftToRight);
}

QWidget *WidgetMonkey::keyboardTarget() const
{
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *root = popup ? popup : window();
    if (QWidget *focused = root->focusWidget()) {
        return focused;
    }
    return root;
}

void WidgetMonkey::typeInto(QWidget *widget)
{
    const char key = isPasswordField(widget) ? secretKey : static_cast<char>('a' + dice.below(4));
    typeInto(widget, QString(QLatin1Char(key)));
}

void WidgetMonkey::typeInto(QWidget *widget, const QString &text)
{
    const QPointer<QWidget> target(widget);
    for (const QChar character : text) {
        sendKey(target, character.toUpper().unicode(), Qt::NoModifier, QString(character));
    }
}

void WidgetMonkey::sendKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers,
                           const QString &text)
{
    const QPointer<QWidget> target(widget);
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    deliver(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    deliver(target, &release);
}

void WidgetMonkey::clickOn(QWidget *widget)
{
    sendClick(widget, widget->rect().center(), Qt::LeftButton, Qt::NoModifier);
}

void WidgetMonkey::dragIn(QWidget *widget, const QPoint &from, const QPoint &to)
{
    const QPointer<QWidget> dragged(widget);
    sendMouse(dragged, QEvent::MouseButtonPress, from, Qt::LeftButton);
    sendMouse(dragged, QEvent::MouseMove, (from + to) / 2, Qt::LeftButton);
    sendMouse(dragged, QEvent::MouseMove, to, Qt::LeftButton);
    sendMouse(dragged, QEvent::MouseButtonRelease, to, Qt::LeftButton);
}

bool WidgetMonkey::isTranslated() const
{
    return translated;
}

WidgetMonkey::Hit WidgetMonkey::hit()
{
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *root = popup ? popup : window();
    const QPoint place(dice.below(qMin(root->width(), 600)), dice.below(qMin(root->height(), 300)));
    QWidget *child = root->childAt(place);
    const Hit result = {child ? child : root, child ? child->mapFrom(root, place) : place};
    return result;
}
