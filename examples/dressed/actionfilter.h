// SPDX-License-Identifier: MIT

#ifndef ACTIONFILTER_H
#define ACTIONFILTER_H

#include <QLineEdit>

class QTreeWidget;
class QTreeWidgetItem;

/*!
 * \brief A line that hides all items of a tree that do not contain its text.
 *
 * An action stays visible if its own text or that of its category matches. If the current item is
 * hidden, the first visible action becomes current.
 */
class ActionFilter : public QLineEdit
{
    Q_OBJECT

public:
    //! \param tree categories with actions below them; must outlive the line.
    explicit ActionFilter(QTreeWidget *tree, QWidget *parent = nullptr);

Q_SIGNALS:
    //! Return was pressed. In this line, it does not press the dialog's default button.
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void apply(const QString &text);

private:
    QTreeWidget *const m_tree;
};

#endif // ACTIONFILTER_H
