// SPDX-License-Identifier: MIT

#ifndef ACTIONFILTER_H
#define ACTIONFILTER_H

#include <QLineEdit>

class QTreeWidget;
class QTreeWidgetItem;

/*!
 * \brief A line that leaves only those items of a tree visible that contain its text.
 *
 * An action stays if its own text or that of its category does. The current item is never hidden:
 * the first visible action takes its place.
 */
class ActionFilter : public QLineEdit
{
    Q_OBJECT

public:
    //! \param tree categories with actions below them; must outlive the line.
    explicit ActionFilter(QTreeWidget *tree, QWidget *parent = nullptr);

Q_SIGNALS:
    //! Return was pressed, which does not press the default button of the dialog here.
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void apply(const QString &text);

private:
    QTreeWidget *const m_tree;
};

#endif // ACTIONFILTER_H
