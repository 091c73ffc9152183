// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_TESTCOMPAT_H
#define TESSALINE_TESTCOMPAT_H

#include <QAbstractItemModel>
#include <QAccessible>
#include <QApplication>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QHeaderView>
#include <QImage>
#include <QList>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPainter>
#include <QPixmap>
#include <QTableView>
#include <QTranslator>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest>

#include <cstdlib>

/// What the tests need of Qt Test and QtCore that Qt 4, 5 and 6 call differently.

typedef void (*MessageReceiver)(QtMsgType type, const QString &message);

namespace compat {

namespace detail {
inline MessageReceiver &messageReceiver()
{
    static MessageReceiver receiver = nullptr;
    return receiver;
}
} // namespace detail

#if QT_VERSION < 0x050000

typedef QtMsgHandler MessageHandler;

namespace detail {
inline void receiveMessage(QtMsgType type, const char *message)
{
    messageReceiver()(type, QString::fromLocal8Bit(message));
}
} // namespace detail

inline MessageHandler installMessageReceiver(MessageReceiver receiver)
{
    detail::messageReceiver() = receiver;
    return qInstallMsgHandler(detail::receiveMessage);
}

inline void restoreMessageHandler(MessageHandler handler)
{
    qInstallMsgHandler(handler);
}

inline void passMessage(MessageHandler handler, QtMsgType type, const QString &message)
{
    if (handler) {
        handler(type, message.toLocal8Bit().constData());
    }
}

/// The bytes under which a translator is asked for a source text, given in UTF-8.
inline QByteArray sourceBytes(const char *utf8)
{
    return QString::fromUtf8(utf8).toLatin1();
}

inline QByteArray methodSignature(const QMetaMethod &method)
{
    return method.signature();
}

inline QByteArray methodName(const QMetaMethod &method)
{
    const QByteArray signature = method.signature();
    return signature.left(signature.indexOf('('));
}

inline void unsetVariable(const char *name)
{
    ::unsetenv(name);
}

inline void waitUntilShown(QWidget *window)
{
    QTest::qWaitForWindowShown(window);
}

inline void activate(QWidget *window)
{
    QApplication::setActiveWindow(window);
}

inline QString accessibleDescription(QAccessibleInterface *accessible)
{
    return accessible->text(QAccessible::Description, 0);
}

inline QPixmap grab(QWidget *widget)
{
    return QPixmap::grabWidget(widget);
}

/// How many pixels of the screen make up one of a widget's.
inline double pixelRatio(const QWidget &)
{
    return 1.0;
}

/// Gives a picture several pixels for one of a window's. Qt 4 has none but the screen's own.
inline void setPixelRatio(QImage *, double)
{
}

/// Deletes the model that a table shows. Its headers would go on painting the sections they had.
inline void deleteModel(QAbstractItemModel *model, QTableView *view)
{
    delete model;
    view->horizontalHeader()->reset();
    view->verticalHeader()->reset();
}

/// Whether Qt's own delegate still has its editor after an event loop that a model runs while it is
/// written to.
const bool editorsOutliveNestedLoops = false;

inline bool sectionsClickable(const QHeaderView *header)
{
    return header->isClickable();
}

inline bool sectionsMovable(const QHeaderView *header)
{
    return header->isMovable();
}

inline void fixSection(QHeaderView *header, int section)
{
    header->setResizeMode(section, QHeaderView::Fixed);
}

inline void freeSection(QHeaderView *header, int section)
{
    header->setResizeMode(section, QHeaderView::Interactive);
}

/// Turns the mouse wheel over a widget, by eighths of a degree.
inline void turnWheel(QWidget *widget, const QPoint &place, int angle)
{
    QWheelEvent event(place, widget->mapToGlobal(place), angle, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// The access that moc gives to signals.
const QMetaMethod::Access signalAccess = QMetaMethod::Protected;

#else

typedef QtMessageHandler MessageHandler;

namespace detail {
inline void receiveMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    messageReceiver()(type, message);
}
} // namespace detail

inline MessageHandler installMessageReceiver(MessageReceiver receiver)
{
    detail::messageReceiver() = receiver;
    return qInstallMessageHandler(detail::receiveMessage);
}

inline void restoreMessageHandler(MessageHandler handler)
{
    qInstallMessageHandler(handler);
}

inline void passMessage(MessageHandler handler, QtMsgType type, const QString &message)
{
    if (handler) {
        handler(type, QMessageLogContext(), message);
    }
}

/// The bytes under which a translator is asked for a source text, given in UTF-8.
inline QByteArray sourceBytes(const char *utf8)
{
    return utf8;
}

inline QByteArray methodSignature(const QMetaMethod &method)
{
    return method.methodSignature();
}

inline QByteArray methodName(const QMetaMethod &method)
{
    return method.name();
}

inline void unsetVariable(const char *name)
{
    qunsetenv(name);
}

inline void waitUntilShown(QWidget *window)
{
    QVERIFY(QTest::qWaitForWindowExposed(window));
}

inline void activate(QWidget *window)
{
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

inline QString accessibleDescription(QAccessibleInterface *accessible)
{
    return accessible->text(QAccessible::Description);
}

inline QPixmap grab(QWidget *widget)
{
    return widget->grab();
}

/// How many pixels of the screen make up one of a widget's.
inline double pixelRatio(const QWidget &widget)
{
    return widget.devicePixelRatioF();
}

/// Gives a picture several pixels for one of a window's.
inline void setPixelRatio(QImage *image, double ratio)
{
    image->setDevicePixelRatio(ratio);
}

/// Deletes the model that a table shows.
inline void deleteModel(QAbstractItemModel *model, QTableView *)
{
    delete model;
}

/// Whether Qt's own delegate still has its editor after an event loop that a model runs while it is
/// written to.
const bool editorsOutliveNestedLoops = true;

inline bool sectionsClickable(const QHeaderView *header)
{
    return header->sectionsClickable();
}

inline bool sectionsMovable(const QHeaderView *header)
{
    return header->sectionsMovable();
}

inline void fixSection(QHeaderView *header, int section)
{
    header->setSectionResizeMode(section, QHeaderView::Fixed);
}

inline void freeSection(QHeaderView *header, int section)
{
    header->setSectionResizeMode(section, QHeaderView::Interactive);
}

/// Turns the mouse wheel over a widget, by eighths of a degree.
inline void turnWheel(QWidget *widget, const QPoint &place, int angle)
{
    QWheelEvent event(place, widget->mapToGlobal(place), QPoint(), QPoint(0, angle), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

/// The access that moc gives to signals.
const QMetaMethod::Access signalAccess = QMetaMethod::Public;

#endif

#if QT_VERSION < 0x060000

/// Whether a property is designable, scriptable and stored.
inline QList<bool> flags(const QMetaProperty &property, const QObject *object)
{
    return QList<bool>() << property.isDesignable(object) << property.isScriptable(object)
                         << property.isStored(object);
}

#else

inline QList<bool> flags(const QMetaProperty &property, const QObject *)
{
    return QList<bool>() << property.isDesignable() << property.isScriptable()
                         << property.isStored();
}

#endif

#if QT_VERSION >= 0x050000 && QT_VERSION < 0x060000

/// Has polygons filled by the rules of Qt 4. Qt 4 has no others, and Qt 6 has them no longer.
inline void roundAsQt4(QPainter *painter)
{
    painter->setRenderHint(QPainter::Qt4CompatiblePainting);
}

#else

inline void roundAsQt4(QPainter *)
{
}

#endif

/// The Qt that the tests, and so the library, were built with.
const char *const builtVersion = QT_VERSION_STR;
#ifdef QT_NO_DEBUG
const bool builtForDebugging = false;
#else
const bool builtForDebugging = true;
#endif

/// Carries out deleteLater() on all versions; waiting alone does so since Qt 5 only.
inline void deliverDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// A translator whose one method has the same parameters everywhere.
class Translator : public QTranslator
{
public:
    bool isEmpty() const override
    {
        return false;
    }

#if QT_VERSION < 0x050000
    QString translate(const char *context, const char *source, const char *) const override
    {
        return find(QByteArray(context), QByteArray(source));
    }
#else
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return find(QByteArray(context), QByteArray(source));
    }
#endif

protected:
    virtual QString find(const QByteArray &context, const QByteArray &source) const = 0;
};

#ifndef QTRY_VERIFY
/// Handles events until the condition holds, for five seconds at most.
template <class Condition> void waitUntil(const Condition &holds)
{
    QElapsedTimer waited;
    waited.start();
    while (!holds() && !waited.hasExpired(5000)) {
        QCoreApplication::processEvents();
        deliverDeferredDeletes();
    }
}
#endif

} // namespace compat

#ifndef QTRY_VERIFY
#define QTRY_VERIFY(condition)    \
    do {                          \
        compat::waitUntil([&]() { \
            return !!(condition); \
        });                       \
        QVERIFY(condition);       \
    } while (false)
#define QTRY_COMPARE(actual, expected)     \
    do {                                   \
        compat::waitUntil([&]() {          \
            return (actual) == (expected); \
        });                                \
        QCOMPARE(actual, expected);        \
    } while (false)
#endif

#endif
