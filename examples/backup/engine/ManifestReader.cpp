// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ManifestReader.h"

#include "PosixFile.h"

#include <utility>

namespace {

// Far more than the longest path takes with every character escaped; a file that is no manifest
// at all may have no end of line anywhere.
const qint64 longestLine = 64 * 1024;

} // namespace

ManifestReader::ManifestReader(const QByteArray &path, const QString &passphrase)
    : m_path(path)
    , m_code(QCryptographicHash::Sha256, passphrase.toUtf8())
{
}

int ManifestReader::open()
{
    return PosixFile::openForReading(m_path, &m_file);
}

bool ManifestReader::step()
{
    const QByteArray line = m_file.readLine(longestLine);
    if (m_file.error() != QFileDevice::NoError) {
        m_error = m_file.errorString();
        return false;
    }
    if (line.isEmpty()) {
        return false;
    }
    ++m_lines;
    m_code.addData(line);
    QByteArray path;
    QByteArray digest;
    if (Manifest::parseLine(line, &path, &digest)) {
        m_manifest.insert(path, digest);
    } else if (++m_badLines == 1) {
        m_firstBadLine = m_lines;
    }
    return true;
}

Manifest ManifestReader::takeManifest()
{
    Manifest result;
    std::swap(result, m_manifest);
    return result;
}

QByteArray ManifestReader::signature() const
{
    return ManifestSignature::fileContent(m_code.result());
}
