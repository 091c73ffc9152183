// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef LINESPLITTER_H
#define LINESPLITTER_H

#include <QByteArray>
#include <QList>

/// Makes lines of what comes in pieces. One that never ends does not fill the memory: what is
/// longer than 16 MB is cut off.
class LineSplitter
{
public:
    /// The lines that are complete now, without their ends.
    QList<QByteArray> add(const QByteArray &piece);
    /// What came after the last end of a line.
    QByteArray takeRest();

private:
    void append(const QByteArray &part);

    QByteArray m_rest;
};

#endif
