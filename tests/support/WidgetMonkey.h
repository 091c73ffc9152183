// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_WIDGETMONKEY_H
#define TESSALINE_WIDGETMONKEY_H

#include "Monkey.h"

#include "TestCompat.h"

#include <QFont>
#include <QPointer>

/// A translator that marks each text it is asked for.
class MarkingTranslator : public compat::Translator
{
protected:
    QString find(const QByteArray &context, const QByteArray &source) const override;
};

/// Does to a window what can be done to any: by mouse, by keys and by the desktop's settings.
///
/// The keyboard goes to where the focus is, and to a popup first. No secret can come from typing,
/// except into a password field: there, and only there, `secretKey` is pressed.
class WidgetMonkey : public Monkey
{
public:
    explicit WidgetMonkey(quint32 seed);
    ~WidgetMonkey() override;

    static const char secretKey = '7';

protected:
    /// Adds the actions. They cost more than those of the models and are weighed accordingly.
    void canUseTheWindow();

    /// The window that is shown; it may be another one after each action.
    virtual QWidget *window() const = 0;

    void resizeWindow();
    void pressKey();
    void typeText();
    void click();
    void doubleClick();
    void drag();
    void turnWheel();
    void moveFocus();
    void hideAndShow();
    void disableForAWhile();
    void closePopup();
    void handleEvents();
    void grab();
    void changeStyle();
    void changePalette();
    void changeFont();
    void changeLanguage();
    void changeDirection();

    /// Whoever gets the keys now: a popup, the focus widget or the window.
    QWidget *keyboardTarget() const;

    /// Types a letter where it belongs.
    void typeInto(QWidget *widget);

    /// Types just this text, as long as the widget lives.
    static void typeInto(QWidget *widget, const QString &text);

    static void sendKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                        const QString &text = QString());

    /// Clicks into the middle of a widget.
    static void clickOn(QWidget *widget);

    /// Moves the left mouse button, pressed, from one place of a widget to another.
    static void dragIn(QWidget *widget, const QPoint &from, const QPoint &to);

    bool isTranslated() const;

private:
    /// A place in the window, and the widget that a user would hit there.
    struct Hit
    {
        QPointer<QWidget> widget;
        QPoint place;
    };

    Hit hit();

    MarkingTranslator translator;
    bool translated;
    const QFont initialFont;
};

#endif
