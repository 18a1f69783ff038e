// SPDX-License-Identifier: MIT

#include "textfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

const char ByteOrderMark[] = "\xEF\xBB\xBF";

} // namespace

bool TextFile::isHtml(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("html") || suffix == QLatin1String("htm");
}

bool TextFile::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error =
            tr("%1 cannot be read: %2").arg(QDir::toNativeSeparators(path), file.errorString());
        return false;
    }
    if (!decode(file.readAll())) {
        m_error = tr("%1 is not a text in UTF-8.").arg(QDir::toNativeSeparators(path));
        return false;
    }
    return true;
}

bool TextFile::decode(const QByteArray &bytes)
{
    m_hasByteOrderMark = bytes.startsWith(ByteOrderMark);
    const QByteArray encoded = m_hasByteOrderMark ? bytes.mid(qstrlen(ByteOrderMark)) : bytes;
    const QString text = QString::fromUtf8(encoded);
    if (text.toUtf8() != encoded || text.contains(QChar::Null))
        return false;
    m_text = text;
    m_hasCarriageReturns = text.contains(QLatin1String("\r\n"));
    m_text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return true;
}

bool TextFile::write(const QString &path, const QString &text)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    const QByteArray bytes = encode(text);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!written)
        m_error =
            tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(path), file.errorString());
    return written;
}

QByteArray TextFile::encode(const QString &text) const
{
    QString lines = text;
    if (m_hasCarriageReturns)
        lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return (m_hasByteOrderMark ? QByteArray(ByteOrderMark) : QByteArray()) + lines.toUtf8();
}
