// SPDX-License-Identifier: MIT

#include "dialogscene.h"

#include <QAbstractButton>
#include <QCryptographicHash>
#include <QPixmap>

namespace {

QString describeTreeItem(const QTreeWidgetItem *item)
{
    QStringList children;
    for (int i = 0; i < item->childCount(); ++i)
        children.append(describeTreeItem(item->child(i)));
    return QStringLiteral("%1 alignment %2 flags %3 icon %4 current %5 (%6)")
        .arg(item->text(0))
        .arg(item->textAlignment(0))
        .arg(item->flags())
        .arg(!item->icon(0).isNull())
        .arg(item == item->treeWidget()->currentItem())
        .arg(children.join(QStringLiteral(", ")));
}

QString describeRow(const QListWidgetItem *row)
{
    return QStringLiteral("%1 alignment %2 flags %3 icon %4 color %5 current %6")
        .arg(row->text())
        .arg(row->textAlignment())
        .arg(row->flags())
        .arg(!row->icon().isNull())
        .arg(row->foreground().color().name())
        .arg(row == row->listWidget()->currentItem());
}

QString pictureOf(QWidget *widget)
{
    const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < image.height(); ++y) {
        const auto line = reinterpret_cast<const char *>(image.constScanLine(y));
        hash.addData(QByteArray::fromRawData(line, image.width() * 4));
    }
    return QStringLiteral("%1 x %2 pixels ").arg(image.width()).arg(image.height())
        + QString::fromLatin1(hash.result().toHex());
}

} // namespace

DialogScene::DialogScene(const Size &size)
    : ManagedScene(size)
    , m_categories(categories())
{
    for (int i = 0; i < toolBars().size(); ++i)
        m_bareToolBars.append({toolBars().at(i)->windowTitle(), true, content(i, 0)});
}

std::unique_ptr<QDialog> DialogScene::createOurs()
{
    return std::make_unique<RyCustomizedDialog>(QList<RyAbstatcManager *>{manager(), nullptr},
                                                window());
}

std::unique_ptr<QDialog> DialogScene::createBare()
{
    return std::make_unique<BareDialog>(m_categories, m_bareToolBars, window());
}

QStringList describeDialog(QDialog *dialog)
{
    QStringList lines(dialog->windowTitle());
    const QTabWidget *const tabs = dialog->findChild<QTabWidget *>();
    for (int i = 0; i < tabs->count(); ++i)
        lines.append(tabs->tabText(i));
    const QWidget *const page = tabs->widget(0);
    const auto buttons = page->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        lines.append(
            QStringLiteral("%1 enabled %2").arg(button->objectName()).arg(button->isEnabled()));
    }
    const QTreeWidget *const tree = page->findChild<QTreeWidget *>();
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        lines.append(describeTreeItem(tree->topLevelItem(i)));
    const auto lists = page->findChildren<QListWidget *>();
    for (const QListWidget *list : lists) {
        lines.append(list->objectName());
        for (int i = 0; i < list->count(); ++i)
            lines.append(describeRow(list->item(i)));
    }
    return lines << pictureOf(dialog);
}
