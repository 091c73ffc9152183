// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LineSplitter.h"

namespace {

const int longestLine = 16 * 1024 * 1024;

} // namespace

QList<QByteArray> LineSplitter::add(const QByteArray &piece)
{
    QList<QByteArray> parts = piece.split('\n');
    const QByteArray unfinished = parts.takeLast();
    QList<QByteArray> lines;
    for (const QByteArray &part : parts) {
        append(part);
        lines.append(takeRest());
    }
    append(unfinished);
    return lines;
}

QByteArray LineSplitter::takeRest()
{
    const QByteArray rest = m_rest;
    m_rest.clear();
    return rest;
}

void LineSplitter::append(const QByteArray &part)
{
    m_rest += part.left(longestLine - m_rest.size());
}
