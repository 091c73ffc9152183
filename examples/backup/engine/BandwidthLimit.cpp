// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BandwidthLimit.h"

namespace {

const qint64 savedMilliseconds = 100;

} // namespace

void BandwidthLimit::setBytesPerSecond(qint64 limit, qint64 now)
{
    m_limit = qMax(qint64(0), limit);
    m_start = now;
    m_bytes = 0;
}

void BandwidthLimit::addBytes(qint64 count)
{
    m_bytes += count;
}

qint64 BandwidthLimit::delay(qint64 now)
{
    if (m_limit == 0) {
        return 0;
    }
    // In floating point: a file's bytes times a thousand need not fit an integer.
    const qint64 due = m_start + qint64(double(m_bytes) * 1000.0 / double(m_limit));
    if (due < now - savedMilliseconds) {
        m_start = now - savedMilliseconds;
        m_bytes = 0;
    }
    return qMax(qint64(0), due - now);
}
