// SPDX-License-Identifier: MIT

#ifndef LAYOUTFILE_H
#define LAYOUTFILE_H

#include "kitlayout.h"

/*!
 * \brief A layout in a file, which may come from somebody else.
 */
class LayoutFile
{
public:
    explicit LayoutFile(const QString &name);

    /*!
     * \brief Writes \a value, or leaves the file as it is and returns false.
     */
    bool write(const QByteArray &value) const;

    /*!
     * \brief Returns the layout of the file, without what could do harm.
     *
     * \param reason is set to why the file is refused, or to an empty string. The result is the
     *        default layout in the first case.
     */
    KitLayout read(QString *reason) const;

private:
    QString m_name;
};

#endif // LAYOUTFILE_H
