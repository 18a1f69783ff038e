// SPDX-License-Identifier: MIT

#ifndef RYABSTATCMANAGER_H
#define RYABSTATCMANAGER_H

#include "rycustomizeddialogexport.h"

#include <QObject>

/*!
 * \brief The common base of the model objects that a host hands to RyCustomizedDialog.
 *
 * The dialog knows its managers only through this class. Which manager goes to which page is
 * fixed by its position in the list that the host passes; see
 * RyCustomizedDialog::RyCustomizedDialog().
 *
 * The host owns its managers: no dialog and no page deletes or re-parents one, and a manager must
 * outlive every dialog that it was given to.
 *
 * The class has no meta-object of its own, deliberately: metaObject() is QObject's, and a
 * qobject_cast to RyAbstatcManager does not compile. A subclass that needs signals or slots
 * declares Q_OBJECT itself, as RyToolBarManager does. The name is spelled as it is on purpose; it
 * is part of the exported interface.
 *
 * Do not subclass it to feed the toolbar page something else than a RyToolBarManager: that page
 * casts without a check.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyAbstatcManager : public QObject
{
public:
    /*!
     * \brief Constructs a manager without a QObject parent; whoever creates it deletes it.
     */
    RyAbstatcManager();

    /*!
     * \brief Destroys the manager. Nothing else is deleted.
     */
    ~RyAbstatcManager() override;
};

#endif // RYABSTATCMANAGER_H
