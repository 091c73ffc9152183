// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FILEREADER_H
#define FILEREADER_H

#include "PosixFile.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QString>

/// Reads one regular file block by block, hashes it, and notices if it changed meanwhile.
class FileReader
{
    Q_DECLARE_TR_FUNCTIONS(FileReader)

public:
    enum Result {
        More,
        Finished,
        Changed, ///< What was read may be part of the old and part of the new content.
        Failed
    };

    FileReader();

    /// Returns false, with an error, if there is no regular file that can be read.
    bool open(const QByteArray &path);
    bool isOpen() const
    {
        return m_file.isOpen();
    }
    Result read(qint64 maximumBytes);
    void close()
    {
        m_file.close();
    }

    /// What the last read() brought.
    const QByteArray &block() const
    {
        return m_block;
    }
    /// As it was when the file was opened.
    const FileState &state() const
    {
        return m_state;
    }
    qint64 bytesRead() const
    {
        return m_bytesRead;
    }
    /// The SHA-256 of everything read so far, 32 bytes.
    QByteArray digest() const
    {
        return m_hash.result();
    }
    QString error() const
    {
        return m_error;
    }

private:
    bool fail(const QString &error);
    bool failFor(int error);
    Result compareWithPath();

    QByteArray m_path;
    QFile m_file;
    FileState m_state;
    QByteArray m_block;
    QCryptographicHash m_hash;
    qint64 m_bytesRead = 0;
    QString m_error;
};

#endif
