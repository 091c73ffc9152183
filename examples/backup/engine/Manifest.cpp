// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Manifest.h"

namespace {

const char dataPrefix[] = "data/";
const int digestDigits = 64;

QByteArray escaped(QByteArray path)
{
    return path.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
}

bool unescape(const QByteArray &text, QByteArray *path)
{
    path->clear();
    for (auto at = text.cbegin(); at != text.cend(); ++at) {
        if (*at != '\\') {
            *path += *at;
            continue;
        }
        ++at;
        if (at == text.cend() || (*at != '\\' && *at != 'n' && *at != 'r')) {
            return false;
        }
        *path += *at == 'n' ? '\n' : *at == 'r' ? '\r' : '\\';
    }
    return true;
}

bool parseDigest(const QByteArray &digits, QByteArray *digest)
{
    *digest = QByteArray::fromHex(digits);
    return digits.size() == digestDigits && digest->toHex() == digits.toLower();
}

} // namespace

QByteArray Manifest::line(const QByteArray &path, const QByteArray &digest)
{
    const QByteArray name = escaped(dataPrefix + path);
    const QByteArray mark = name.contains('\\') ? "\\" : "";
    return mark + digest.toHex() + "  " + name + '\n';
}

bool Manifest::parseLine(const QByteArray &line, QByteArray *path, QByteArray *digest)
{
    const bool isEscaped = line.startsWith('\\');
    QByteArray rest = isEscaped ? line.mid(1) : line;
    if (rest.endsWith('\n')) {
        rest.chop(1);
    }
    // The second separator is an asterisk if the checksum was made in binary mode.
    const QByteArray separator = rest.mid(digestDigits, 2);
    if ((separator != "  " && separator != " *") || !parseDigest(rest.left(digestDigits), digest)) {
        return false;
    }
    QByteArray name = rest.mid(digestDigits + 2);
    if (isEscaped && !unescape(QByteArray(name), &name)) {
        return false;
    }
    *path = name.mid(static_cast<int>(sizeof dataPrefix) - 1);
    return name.startsWith(dataPrefix) && !path->isEmpty();
}

QByteArray ManifestSignature::fileContent(const QByteArray &code)
{
    return code.toHex() + '\n';
}
