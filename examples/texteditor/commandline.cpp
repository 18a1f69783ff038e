// SPDX-License-Identifier: MIT

#include "commandline.h"

CommandLine::CommandLine()
    : m_settings(QStringLiteral("settings"), tr("Keep all settings in <file>."),
                 QStringLiteral("file"))
    , m_resetLayout(QStringLiteral("reset-layout"), tr("Forget the stored layout of the toolbars."))
    , m_profiles(QStringLiteral("profiles"), tr("Let the user keep several layouts by name."))
{
    m_parser.setApplicationDescription(tr("A text editor whose toolbars the user can customize."));
    m_parser.addHelpOption();
    m_parser.addVersionOption();
    m_parser.addOption(m_settings);
    m_parser.addOption(m_resetLayout);
    m_parser.addOption(m_profiles);
    m_parser.addPositionalArgument(QStringLiteral("file"), tr("The document to open."),
                                   QStringLiteral("[file]"));
}

bool CommandLine::parse(const QStringList &arguments)
{
    return m_parser.parse(arguments) && m_parser.positionalArguments().size() <= 1;
}

void CommandLine::process(const QCoreApplication &application)
{
    m_parser.process(application);
    if (m_parser.positionalArguments().size() > 1)
        m_parser.showHelp(1);
}

QString CommandLine::settingsFile() const
{
    return m_parser.value(m_settings);
}

bool CommandLine::resetLayout() const
{
    return m_parser.isSet(m_resetLayout);
}

bool CommandLine::profiles() const
{
    return m_parser.isSet(m_profiles);
}

QString CommandLine::document() const
{
    return m_parser.positionalArguments().value(0);
}
