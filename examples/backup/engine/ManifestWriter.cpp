// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ManifestWriter.h"

#include "PosixFile.h"

#include <QFile>

#include <cerrno>

ManifestWriter::ManifestWriter(const TargetFolder &target, const Manifest &manifest,
                               const QString &passphrase)
    : m_target(target)
    , m_digests(manifest.digests())
    , m_next(m_digests.constBegin())
    , m_isSigned(!passphrase.isEmpty())
    , m_code(QCryptographicHash::Sha256, passphrase.toUtf8())
    , m_file(QFile::decodeName(target.workPath("manifest")))
{
}

bool ManifestWriter::step()
{
    if (!m_file.isOpen() && !start()) {
        return false;
    }
    if (m_next == m_digests.constEnd()) {
        finish();
        return false;
    }
    writeLine(m_next.key(), m_next.value());
    ++m_next;
    return true;
}

bool ManifestWriter::start()
{
    return m_file.open(QIODevice::WriteOnly) || fail(m_file.errorString());
}

void ManifestWriter::writeLine(const QByteArray &path, const QByteArray &digest)
{
    FileState state;
    const int error = PosixFile::state(m_target.dataPath(path), &state);
    // A file in a folder that may not be entered is still there, as far as anyone can tell.
    const bool isGone
        = error ? error == ENOENT || error == ENOTDIR : state.kind != FileState::Regular;
    if (!isGone) {
        const QByteArray line = Manifest::line(path, digest);
        m_code.addData(line);
        // An error is remembered by the file, and shows when it is committed.
        m_file.write(line);
    }
}

void ManifestWriter::finish()
{
    if (!putInPlace(&m_file, m_target.manifestPath())) {
        return;
    }
    if (m_isSigned) {
        writeSignature();
        return;
    }
    const int error = PosixFile::remove(m_target.signaturePath(), FileState::Regular);
    if (error && error != ENOENT) {
        fail(PosixFile::errorText(error));
    }
}

bool ManifestWriter::putInPlace(QSaveFile *file, const QByteArray &path)
{
    if (!file->commit()) {
        return fail(file->errorString());
    }
    const int error = PosixFile::rename(QFile::encodeName(file->fileName()), path);
    return !error || fail(PosixFile::errorText(error));
}

bool ManifestWriter::writeSignature()
{
    QSaveFile file(QFile::decodeName(m_target.workPath("signature")));
    if (!file.open(QIODevice::WriteOnly)) {
        return fail(file.errorString());
    }
    file.write(ManifestSignature::fileContent(m_code.result()));
    return putInPlace(&file, m_target.signaturePath());
}

bool ManifestWriter::fail(const QString &reason)
{
    m_error = tr("The manifest cannot be written: %1").arg(reason);
    return false;
}
