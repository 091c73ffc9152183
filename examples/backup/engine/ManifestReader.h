// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef MANIFESTREADER_H
#define MANIFESTREADER_H

#include "Manifest.h"

#include <QFile>
#include <QMessageAuthenticationCode>
#include <QString>

/// Reads a manifest line by line and computes its signature on the way.
class ManifestReader
{
public:
    ManifestReader(const QByteArray &path, const QString &passphrase);

    /// 0 or the system's error number.
    int open();
    /// Reads the next line; returns false at the end.
    bool step();

    /// Everything understood so far, which the reader then no longer has.
    Manifest takeManifest();
    qint64 badLines() const
    {
        return m_badLines;
    }
    qint64 firstBadLine() const
    {
        return m_firstBadLine;
    } ///< Counted from 1.
    /// What the signature file of this manifest should contain.
    QByteArray signature() const;
    /// Empty, or why the end was not reached.
    QString error() const
    {
        return m_error;
    }

private:
    QByteArray m_path;
    QFile m_file;
    QMessageAuthenticationCode m_code;
    Manifest m_manifest;
    qint64 m_lines = 0;
    qint64 m_badLines = 0;
    qint64 m_firstBadLine = 0;
    QString m_error;
};

#endif
