// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileCopier.h"

#include <QFile>

FileCopier::FileCopier(const QByteArray &standIn)
    : m_standIn(standIn)
{
}

bool FileCopier::start(const QByteArray &sourcePath)
{
    abort();
    m_warning.clear();
    if (!m_reader.open(sourcePath)) {
        m_error = m_reader.error();
        return false;
    }
    m_output.reset(new QSaveFile(QFile::decodeName(m_standIn)));
    if (!m_output->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        fail(tr("The copy cannot be created: %1").arg(m_output->errorString()));
        return false;
    }
    return true;
}

FileReader::Result FileCopier::step(qint64 maximumBytes)
{
    const FileReader::Result result = m_reader.read(maximumBytes);
    switch (result) {
    case FileReader::More:
        return write(m_reader.block());
    case FileReader::Finished:
        return finish();
    case FileReader::Failed:
        return fail(m_reader.error());
    case FileReader::Changed:
        break;
    }
    abort();
    return result;
}

void FileCopier::abort()
{
    m_output.reset();
    m_reader.close();
}

FileReader::Result FileCopier::write(const QByteArray &block)
{
    qint64 written = 0;
    while (written < block.size()) {
        // A disk that is nearly full takes part of the block, and only then tells why not more.
        const qint64 count = m_output->write(block.constData() + written, block.size() - written);
        if (count < 0) {
            return fail(tr("The copy cannot be written: %1").arg(m_output->errorString()));
        }
        written += count;
    }
    PosixFile::writeBehind(m_output->handle(), m_reader.bytesRead(), block.size());
    return FileReader::More;
}

FileReader::Result FileCopier::finish()
{
    if (!m_output->commit()) {
        return fail(tr("The copy cannot be completed: %1").arg(m_output->errorString()));
    }
    abort();
    keepAttributes();
    return FileReader::Finished;
}

FileReader::Result FileCopier::fail(const QString &error)
{
    m_error = error;
    abort();
    return FileReader::Failed;
}

void FileCopier::keepAttributes()
{
    int error = PosixFile::setTime(m_standIn, m_reader.state());
    if (!error) {
        error = PosixFile::setPermissions(m_standIn, m_reader.state().permissions);
    }
    if (error) {
        m_warning = tr("It was copied, but not its modification time and permissions: %1")
                        .arg(PosixFile::errorText(error));
    }
}
