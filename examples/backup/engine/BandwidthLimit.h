// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BANDWIDTHLIMIT_H
#define BANDWIDTHLIMIT_H

#include <QtGlobal>

/// Says how long to wait so that no more than so many bytes a second are written. Knows no clock:
/// the caller gives the time, in milliseconds of any steady clock.
class BandwidthLimit
{
public:
    /// Bytes a second; 0, the default, is no limit. Counting starts anew.
    void setBytesPerSecond(qint64 limit, qint64 now);
    qint64 bytesPerSecond() const
    {
        return m_limit;
    }

    void addBytes(qint64 count);

    /// Milliseconds from now until the next byte may be written; 0 if it may at once. Time that was
    /// not used is not saved up for more than a moment.
    qint64 delay(qint64 now);

private:
    qint64 m_limit = 0;
    qint64 m_start = 0;
    qint64 m_bytes = 0;
};

#endif
