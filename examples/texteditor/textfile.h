// SPDX-License-Identifier: MIT

#ifndef TEXTFILE_H
#define TEXTFILE_H

#include <QCoreApplication>
#include <QString>

class QByteArray;

/*!
 * \brief The file of a document: plain text in UTF-8, or HTML if its name says so.
 *
 * Line ends and byte order mark are written as they were read.
 */
class TextFile
{
    Q_DECLARE_TR_FUNCTIONS(TextFile)

public:
    //! Whether a file with this name contains formatted text.
    static bool isHtml(const QString &path);

    //! Reads the whole file. Returns false and sets an error if it cannot be read or is not text.
    bool read(const QString &path);

    //! The text from read(), lines separated by "\n".
    QString text() const { return m_text; }

    //! Writes the whole file. If that fails, leaves it unchanged and returns false.
    bool write(const QString &path, const QString &text);

    //! Why the last operation failed, as a sentence for the user.
    QString error() const { return m_error; }

private:
    bool decode(const QByteArray &bytes);
    QByteArray encode(const QString &text) const;

    QString m_text;
    QString m_error;
    bool m_hasByteOrderMark = false;
    bool m_hasCarriageReturns = false;
};

#endif // TEXTFILE_H
