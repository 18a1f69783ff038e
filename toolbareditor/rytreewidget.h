// SPDX-License-Identifier: MIT

#ifndef RYTREEWIDGET_H
#define RYTREEWIDGET_H

#include "rycustomizeddialogexport.h"

#include <QPoint>
#include <QTreeWidget>

/*!
 * \brief A tree whose items can be moved or copied by drag and drop, within it and to others of its
 *        kind.
 *
 * Press an item and drag it to move it; hold Control before the drag starts to copy it. The item
 * lands, with everything below it, as the last child of the item under the pointer, or at the end
 * of the top level over empty space. Only the current item is dragged, whatever else is selected.
 *
 * Use it where a user arranges a tree of the host's own. The pages of RyCustomizedDialog do not use
 * it, and it has no signal for a drop.
 *
 * \code
 * RyTreeWidget commands;
 * RyTreeWidget menu;   // drag from one into the other
 * \endcode
 *
 * Quirks a host must know, all deliberate:
 * - A move removes the dragged item however the drag ends: also when it is cancelled, refused or
 *   dropped elsewhere, and when the item is dropped into its own subtree, which vanishes whole.
 * - No key does anything in the tree, Control excepted; nor does its parent see the keys.
 * - A Control key that is released while another widget has the focus, or during a drag, is missed.
 *
 * Drags from anything else, and payloads other than RyTreeItemMimeData, are refused. The order of
 * the fields and of the virtual functions is part of the binary contract.
 */
class RYCUSTOMIZEDDIALOG_EXPORT RyTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    /*!
     * \brief Constructs an empty tree that drags and accepts drops, with extended selection and a
     *        style sheet that paints selected items on dark red.
     *
     * \param parent the tree's parent, which owns it; with null the caller does.
     */
    explicit RyTreeWidget(QWidget *parent = nullptr);

    /*!
     * \brief Destroys the tree and its items.
     */
    ~RyTreeWidget() override;

    /*!
     * \brief Drags the current item until the user drops it or gives up; does nothing without one.
     *
     * With the Control key held, as this tree saw it, a copy is offered and the item stays.
     * Otherwise a move is offered and the item is deleted when the drag ends, whatever came of it,
     * deliberately. Runs a nested event loop, in which neither the tree nor the item may be
     * deleted.
     */
    void performDrag();

protected:
    /*!
     * \brief Keeps the position of a left press, from which a drag is measured, then does what
     *        QTreeView does.
     */
    void mousePressEvent(QMouseEvent *event) override;

    /*!
     * \brief Does what QTreeView does.
     */
    void mouseReleaseEvent(QMouseEvent *event) override;

    /*!
     * \brief Starts a drag once the left button has moved farther than
     *        QApplication::startDragDistance(), then does what QTreeView does.
     */
    void mouseMoveEvent(QMouseEvent *event) override;

    /*!
     * \brief Notes the Control key and swallows every other, deliberately.
     */
    void keyPressEvent(QKeyEvent *event) override;

    /*!
     * \brief Notes the Control key and swallows every other, deliberately.
     */
    void keyReleaseEvent(QKeyEvent *event) override;

    /*!
     * \brief Accepts a drag whose source is a RyTreeWidget.
     */
    void dragEnterEvent(QDragEnterEvent *event) override;

    /*!
     * \brief Makes the item under the pointer current and accepts, except over the dragged item and
     *        for a foreign payload.
     */
    void dragMoveEvent(QDragMoveEvent *event) override;

    /*!
     * \brief Inserts a deep copy of the dragged item; leaves foreign payloads alone.
     */
    void dropEvent(QDropEvent *event) override;

private:
    // Where the left button was pressed last; never reset.
    QPoint startPos;
    // True while the Control key is held, as far as this tree's own key events show.
    bool ctrlPressed;
};

#endif // RYTREEWIDGET_H
