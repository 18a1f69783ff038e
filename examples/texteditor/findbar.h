// SPDX-License-Identifier: MIT

#ifndef FINDBAR_H
#define FINDBAR_H

#include "textsearch.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

/*!
 * \brief The bar below the text, to find and replace; hidden until it is opened.
 */
class FindBar : public QWidget
{
    Q_OBJECT

public:
    //! \param editor the editor to search, which gets the focus back and must outlive the bar.
    explicit FindBar(QTextEdit *editor, QWidget *parent = nullptr);

public Q_SLOTS:
    void openToFind();
    void openToReplace();
    void findNext();
    void findPrevious();
    void replace();
    void replaceAll();
    void setReadOnly(bool readOnly);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void createFindRow(QWidget *row);
    void createReplaceRow(QWidget *row);
    QPushButton *createButton(const QString &text, const char *name, void (FindBar::*slot)());
    void open();
    void closeBar();
    bool prepareSearch();
    void report(bool found);

    QTextEdit *const m_editor;
    TextSearch m_search;
    QLineEdit *const m_text;
    QLineEdit *const m_replacement;
    QCheckBox *const m_matchCase;
    QLabel *const m_result;
    QWidget *const m_replaceRow;
};

#endif // FINDBAR_H
