// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef MANIFEST_H
#define MANIFEST_H

#include <QByteArray>
#include <QMap>
#include <QString>

/// The SHA-256 checksums of the files in a target's data/ folder, by path relative to it.
///
/// Written, it is what `sha256sum -c` of the GNU core utilities reads, run in the target folder:
/// one line "<64 hex digits>  data/<path>" for each file, sorted by the bytes of the paths. As the
/// manual of those utilities says under "md5sum invocation", a line whose path contains a
/// backslash, newline or carriage return starts with a backslash, and these characters are written
/// as "\\", "\n" and "\r".
class Manifest
{
public:
    typedef QMap<QByteArray, QByteArray> Digests;

    void insert(const QByteArray &path, const QByteArray &digest)
    {
        m_digests[path] = digest;
    }
    /// 32 bytes, or empty if there is no line for the path.
    QByteArray digest(const QByteArray &path) const
    {
        return m_digests.value(path);
    }
    /// Like digest(), and takes the line out.
    QByteArray take(const QByteArray &path)
    {
        return m_digests.take(path);
    }
    const Digests &digests() const
    {
        return m_digests;
    }

    /// One line including its newline.
    static QByteArray line(const QByteArray &path, const QByteArray &digest);
    /// Returns false if this is no line of a manifest. The newline may be missing.
    static bool parseLine(const QByteArray &line, QByteArray *path, QByteArray *digest);

private:
    Digests m_digests;
};

/// The signature of a manifest: the HMAC-SHA256 (RFC 2104) of the manifest file's bytes under the
/// passphrase as UTF-8, written as one line of 64 hex digits. `openssl dgst -sha256 -hmac
/// PASSPHRASE manifest.sha256` prints the same digits.
namespace ManifestSignature {

QByteArray fileContent(const QByteArray &code);

}

#endif
