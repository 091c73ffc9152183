// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_QTCOMPAT_H
#define TESSALINE_QTCOMPAT_H

#include <QByteArray>
#include <QColor>
#include <QDateTime>
#include <QFontMetrics>
#include <QHeaderView>
#include <QMetaType>
#include <QPainter>
#include <QString>
#include <QVariant>

/// Whether an accessibility interface can tell a value.
#if QT_VERSION >= 0x050000 && !defined(QT_NO_ACCESSIBILITY)
#define TESSALINE_HAS_ACCESSIBLE_VALUES
#endif

/// What Qt 4, 5 and 6 call or do differently, so that no other source needs to ask which Qt it has.
namespace compat {

#if QT_VERSION < 0x050000

/// Whether an item view in CollapsingState puts off a posted layout of its items. Qt 4 does not.
const bool collapsingHoldsLayout = false;

/// Whether an item view carries out a posted layout of its items before it places its editors. Qt 4
/// does so while it goes through them, and crashes if the layout closes one.
const bool layoutPrecedesEditors = false;

/// Whether a button that takes the focus from its table makes its cell current. In Qt 4 it does.
const bool currentCellFollowsButtons = true;

inline void setSectionsClickable(QHeaderView *header, bool clickable)
{
    header->setClickable(clickable);
}

inline void setSectionResizeMode(QHeaderView *header, QHeaderView::ResizeMode mode)
{
    header->setResizeMode(mode);
}

inline QHeaderView::ResizeMode sectionResizeMode(const QHeaderView *header, int section)
{
    return header->resizeMode(section);
}

/// Gives a section any size from 0 up. A negative size is taken as 0.
inline void resizeSection(QHeaderView *header, int section, int size)
{
    header->resizeSection(section, qMax(0, size));
}

/// The bytes under which tr() looks a text up that is only known at run time.
inline QByteArray trSource(const QString &text)
{
    return text.toLatin1();
}

/// Whether polygons are filled by the rules of Qt 4.
inline bool roundsAsQt4(const QPainter &)
{
    return true;
}

#else

/// Whether an item view in CollapsingState puts off a posted layout of its items.
const bool collapsingHoldsLayout = true;

/// Whether an item view carries out a posted layout of its items before it places its editors.
const bool layoutPrecedesEditors = true;

/// Whether a button that takes the focus from its table makes its cell current.
const bool currentCellFollowsButtons = false;

inline void setSectionsClickable(QHeaderView *header, bool clickable)
{
    header->setSectionsClickable(clickable);
}

inline void setSectionResizeMode(QHeaderView *header, QHeaderView::ResizeMode mode)
{
    header->setSectionResizeMode(mode);
}

inline QHeaderView::ResizeMode sectionResizeMode(const QHeaderView *header, int section)
{
    return header->sectionResizeMode(section);
}

/// Gives a section any size from 0 up. A negative size is taken as 0.
///
/// Since Qt 5 the header's minimum, meant for the user's mouse, bounds programs too. So it is put
/// aside for this one call: lowered for good it would let the user drag a section out of sight.
inline void resizeSection(QHeaderView *header, int section, int size)
{
    const int minimum = header->minimumSectionSize();
    if (size >= minimum) {
        header->resizeSection(section, size);
        return;
    }
    header->setMinimumSectionSize(-1);
    const bool styleDecides = header->minimumSectionSize() == minimum;
    header->setMinimumSectionSize(0);
    header->resizeSection(section, qMax(0, size));
    header->setMinimumSectionSize(styleDecides ? -1 : minimum);
}

/// The bytes under which tr() looks a text up that is only known at run time. Characters outside
/// Latin-1 become "?", as they always did; since Qt 5 tr() reads UTF-8.
inline QByteArray trSource(const QString &text)
{
    return QString::fromLatin1(text.toLatin1()).toUtf8();
}

#if QT_VERSION < 0x060000

/// Whether polygons are filled by the rules of Qt 4.
inline bool roundsAsQt4(const QPainter &painter)
{
    return painter.testRenderHint(QPainter::Qt4CompatiblePainting);
}

#else

inline bool roundsAsQt4(const QPainter &)
{
    return false;
}

#endif

#endif

#if QT_VERSION < 0x050b00

inline int charWidth(const QFontMetrics &metrics, QChar character)
{
    return metrics.width(character);
}

#else

inline int charWidth(const QFontMetrics &metrics, QChar character)
{
    return metrics.horizontalAdvance(character);
}

#endif

/// QDateTime::fromTime_t, which is gone in Qt 6: local time, of seconds since 1970 in UTC.
inline QDateTime fromSecs(qint64 seconds)
{
    return QDateTime::fromMSecsSinceEpoch(seconds * 1000);
}

/// The seconds from one time to another, cut off towards zero. Qt 4's own function is a second off
/// where a midnight lies between.
inline qint64 secsTo(const QDateTime &from, const QDateTime &to)
{
    return (to.toMSecsSinceEpoch() - from.toMSecsSinceEpoch()) / 1000;
}

/// The colour of a name or of "#" and 3, 6, 9 or 12 digits. Eight digits, with an alpha channel
/// since Qt 5.2, make an invalid colour, as they did before.
inline QColor namedColor(const QString &name)
{
    const bool hasAlphaChannel = name.startsWith(QLatin1Char('#')) && name.size() == 9;
    return hasAlphaChannel ? QColor() : QColor(name);
}

/// QVariant::toString as Qt 4 has it: a double with 15 and a float with 6 significant digits, where
/// newer versions write the shortest form ("1e+06" for a million).
inline QString text(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 15);
    case QMetaType::Float:
        return QString::number(value.toDouble(), 'g', 6);
    default:
        return value.toString();
    }
}

} // namespace compat

#endif
