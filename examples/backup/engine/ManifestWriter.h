// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef MANIFESTWRITER_H
#define MANIFESTWRITER_H

#include "Manifest.h"
#include "TargetFolder.h"

#include <QCoreApplication>
#include <QMessageAuthenticationCode>
#include <QSaveFile>
#include <QString>

/// Writes a manifest and its signature to a target line by line. Lines whose file is not there are
/// left out, so that the manifest is true whatever happened before.
class ManifestWriter
{
    Q_DECLARE_TR_FUNCTIONS(ManifestWriter)

public:
    /// Without a passphrase an old signature is removed.
    ManifestWriter(const TargetFolder &target, const Manifest &manifest, const QString &passphrase);

    /// Writes the next line; returns false at the end and on an error.
    bool step();

    QString error() const
    {
        return m_error;
    }

private:
    bool start();
    void writeLine(const QByteArray &path, const QByteArray &digest);
    void finish();
    bool putInPlace(QSaveFile *file, const QByteArray &path);
    bool writeSignature();
    bool fail(const QString &reason);

    TargetFolder m_target;
    Manifest::Digests m_digests;
    Manifest::Digests::const_iterator m_next;
    bool m_isSigned;
    QMessageAuthenticationCode m_code;
    QSaveFile m_file;
    QString m_error;
};

#endif
