// SPDX-License-Identifier: MIT

// readhelp HELP_FILE COLLECTION NAME...
//
// Reads a help file the way Qt's help viewers do: registers it in the collection, asks for the page
// of each name, and reads that page. Fails unless every name has a page that shows it.

#include <QGuiApplication>
#include <QHelpEngineCore>
#include <QHelpLink>
#include <QTextDocument>
#include <QTextStream>
#include <QUrl>

namespace {

// The text of the page that the help index gives for the name; empty if there is none.
QString pageOf(const QHelpEngineCore &help, const QString &name)
{
    const QList<QHelpLink> links = help.documentsForIdentifier(name);
    if (links.isEmpty())
        return QString();
    QTextDocument page;
    page.setHtml(QString::fromUtf8(help.fileData(links.first().url)));
    return page.toPlainText();
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QTextStream output(stdout);
    const QStringList arguments = application.arguments();
    const QString helpFile = arguments.value(1);

    QHelpEngineCore help(arguments.value(2));
    if (!help.setupData() || !help.registerDocumentation(helpFile)) {
        output << "Not registered: " << help.error() << '\n';
        return 1;
    }
    output << "Registered " << help.registeredDocumentations().join(QStringLiteral(", ")) << '\n';

    int missing = 0;
    for (const QString &name : arguments.mid(3)) {
        const QString text = pageOf(help, name);
        const QString member = name.section(QStringLiteral("::"), -1);
        output << name << ": " << text.size() << " characters\n";
        if (!text.contains(member))
            ++missing;
    }
    output << arguments.size() - 3 - missing << " of " << arguments.size() - 3
           << " names have a page\n";
    return missing == 0 ? 0 : 1;
}
