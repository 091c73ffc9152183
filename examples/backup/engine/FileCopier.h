// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FILECOPIER_H
#define FILECOPIER_H

#include "FileReader.h"

#include <QByteArray>
#include <QSaveFile>
#include <QString>

#include <memory>

/// Copies one regular file, with its modification time and permissions, block by block. The copy
/// appears under the stand-in's path only when it is complete; moving it to where it belongs is up
/// to the caller. The stand-in's folder should be closed to others: the permissions come last.
class FileCopier
{
    Q_DECLARE_TR_FUNCTIONS(FileCopier)

public:
    /// The stand-in has a short plain name, so that any name can be copied: one of full length, or
    /// one that is not text, would have no room for a suffix or no form as a QString.
    explicit FileCopier(const QByteArray &standIn);

    bool start(const QByteArray &sourcePath);
    bool isActive() const
    {
        return m_output != nullptr;
    }
    /// Copies at most that many bytes. Anything but FileReader::More ends the copy.
    FileReader::Result step(qint64 maximumBytes);
    /// Leaves nothing behind.
    void abort();

    const QByteArray &standIn() const
    {
        return m_standIn;
    }
    QByteArray digest() const
    {
        return m_reader.digest();
    }
    qint64 bytesRead() const
    {
        return m_reader.bytesRead();
    }
    QString error() const
    {
        return m_error;
    }
    /// Set if the content was copied but its time or permissions were not.
    QString warning() const
    {
        return m_warning;
    }

private:
    FileReader::Result write(const QByteArray &block);
    FileReader::Result finish();
    FileReader::Result fail(const QString &error);
    void keepAttributes();

    QByteArray m_standIn;
    FileReader m_reader;
    std::unique_ptr<QSaveFile> m_output;
    QString m_error;
    QString m_warning;
};

#endif
