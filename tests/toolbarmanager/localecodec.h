// SPDX-License-Identifier: MIT

#ifndef LOCALECODEC_H
#define LOCALECODEC_H

#include <QTextCodec>

/*
 * Another local 8-bit encoding for as long as the object lives.
 */
class LocaleCodec
{
public:
    explicit LocaleCodec(const char *name)
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(nullptr); }

private:
    Q_DISABLE_COPY(LocaleCodec)
};

#endif // LOCALECODEC_H
