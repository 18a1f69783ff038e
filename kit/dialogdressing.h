// SPDX-License-Identifier: MIT

#ifndef DIALOGDRESSING_H
#define DIALOGDRESSING_H

#include "dialogparts.h"
#include "rytoolbarkit.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class ActionSearch;
class ReadableViews;
class RyToolBarManager;

/*!
 * \brief What the kit adds to a dialog that it opens. The dialog owns it.
 */
class DialogDressing : public QObject
{
    Q_OBJECT

public:
    /*!
     * \param categories those of the menus, in the order of the menus.
     */
    DialogDressing(RyCustomizedDialog *dialog, RyToolBarManager *manager,
                   const QStringList &categories, RyToolBarKit::Features features);

private Q_SLOTS:
    void dressRows();
    void forgetRows();

private:
    const DialogParts m_parts;
    const QPointer<RyToolBarManager> m_manager;
    // Each is null without its feature.
    ReadableViews *m_readableViews;
    ActionSearch *m_actionSearch;
    bool m_isFilled;
};

#endif // DIALOGDRESSING_H
