// SPDX-License-Identifier: MIT

/*
 * Wrong on purpose and built by nobody: tools/check-qt-versions.sh shows with it that it finds what
 * Qt 6 deprecates. Each comment names what the list or the compiler has to say of its line.
 */

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QColor>
#include <QDropEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QVariant>

// clang-format off
void deprecated(QCheckBox *box, QMouseEvent *press, QDropEvent *drop, QAction *action)
{
    for (QWidget *widget : action->associatedWidgets()) // no member named 'associatedWidgets'
        widget->move(press->globalPos()); // QMouseEvent::globalPos() const: deprecated since 6.0
    box->move(drop->pos()); // no member named 'pos'
    const QVariant::Type type = QVariant::Bool; // QVariant::Type::Bool: deprecated since 6.0
    const QList<int> numbers{type};
    for (const int number : qAsConst(numbers)) // qAsConst(T &): deprecated since 6.6
        box->setTristate(number);
    QColor color;
    color.setNamedColor(box->text()); // no member named 'setNamedColor'
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // no member named 'AA_UseHighDpiPixmaps'
    const QPixmap pixmap = QMessageBox::standardIcon(QMessageBox::Warning); // no member named 'standardIcon'
    QObject::connect(box, SIGNAL(stateChanged(int)), box, SLOT(close())); // SIGNAL(stateChanged(int)): deprecated since 6.9
    QObject::connect(box, &QCheckBox::stateChanged, box, &QWidget::close); // QCheckBox::stateChanged(int): deprecated since 6.9
}
// clang-format on
