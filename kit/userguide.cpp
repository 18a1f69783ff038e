// SPDX-License-Identifier: MIT

#include "userguide.h"

#include <RyCustomizedDialog>

#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

namespace {

QString pathIn(const QString &language)
{
    return QStringLiteral("/RyToolBarKit/guide/%1.html").arg(language);
}

} // namespace

UserGuide::UserGuide(RyCustomizedDialog *dialog)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_window(nullptr)
{
    disconnect(dialog->helpButton(), nullptr, dialog, nullptr);
    // With the dialog as the receiver, so that a program disconnects both from it in the same way.
    connect(dialog->helpButton(), &QPushButton::clicked, dialog, [this] { show(); });
}

QUrl UserGuide::page()
{
    //: The name of your language in itself. Where the user guide is translated, it is the name of
    //: its file.
    const QString path = pathIn(tr("English"));
    const bool exists = QFile::exists(QLatin1Char(':') + path);
    return QUrl(QStringLiteral("qrc:") + (exists ? path : pathIn(QStringLiteral("English"))));
}

void UserGuide::show()
{
    if (!m_window)
        createWindow();
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

// A child of the dialog, which is modal: otherwise the user could not even scroll in it.
void UserGuide::createWindow()
{
    m_window = new QDialog(m_dialog);
    m_window->setObjectName(QStringLiteral("userGuide"));
    m_window->setWindowFlags(m_window->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    QTextBrowser *const browser = new QTextBrowser;
    browser->setSource(page());
    m_window->setWindowTitle(browser->documentTitle());
    browser->setAccessibleName(browser->documentTitle());
    QVBoxLayout *const layout = new QVBoxLayout(m_window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(browser);
    // Wide enough for the pictures.
    const QSize screen = m_dialog->windowHandle()->screen()->availableSize();
    m_window->resize(QSize(820, 640).boundedTo(screen * 0.9));
}
