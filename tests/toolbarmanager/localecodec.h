// SPDX-License-Identifier: MIT

#ifndef LOCALECODEC_H
#define LOCALECODEC_H

#include <QString>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

/*
 * Another local 8-bit encoding for as long as the object lives. With Qt 6 it stays UTF-8, which it
 * always is on this platform.
 */
class LocaleCodec
{
public:
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    explicit LocaleCodec(const char *name)
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocaleCodec()
    {
        QTextCodec::setCodecForLocale(nullptr);
    }
    static bool isPossible()
    {
        return true;
    }
#else
    // The local encoding of Qt 6 is always UTF-8 on this platform.
    explicit LocaleCodec(const char *)
    {
    }
    static bool isPossible()
    {
        return false;
    }
#endif

    // Text in this encoding as it looks where UTF-8 is expected.
    static QString shown(const QString &text)
    {
        return QString::fromUtf8(text.toLocal8Bit());
    }

private:
    Q_DISABLE_COPY(LocaleCodec)
};

#endif // LOCALECODEC_H
