// SPDX-License-Identifier: MIT

#ifndef SAVEDLAYOUT_H
#define SAVEDLAYOUT_H

#include <QByteArray>
#include <QStringList>

#include <vector>

/*
 * The fields of a saved state, read without the help of QDataStream.
 */
struct SavedLayout
{
    struct ToolBar
    {
        QString objectName; // of a default toolbar whatever it was saved under
        QString title; // of custom toolbars only
        QStringList actions; // null for a separator
    };

    // Reads in the plainest way, whatever the bytes are: every count is believed, and what the
    // bytes do not hold is zero or null. As for the manager, a list or section ends after 1,000
    // entries past the end of the bytes.
    static SavedLayout of(const QByteArray &bytes);

    QByteArray bytes() const;

    // Numbers in decimal, markers in hexadecimal, texts in single quotes or null, in order, and at
    // last what is wrong with the size.
    QStringList fields() const;

    // True if that layout has the same fields, and null wherever this one has.
    bool matches(const SavedLayout &other) const;

    qint32 marker = 255;
    qint32 version = 0;
    int defaultMarker = 0xfe;
    std::vector<ToolBar> defaults;
    int customMarker = 0xfd;
    std::vector<ToolBar> customs;
    // True if bytes were missing.
    bool isShort = false;
    // How many bytes were left.
    int surplus = 0;
};

#endif // SAVEDLAYOUT_H
