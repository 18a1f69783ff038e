// SPDX-License-Identifier: MIT

#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>

/*!
 * \brief The command-line arguments of the application.
 */
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();

    //! Reads \a arguments; returns false if they are wrong.
    bool parse(const QStringList &arguments);

    //! Reads the arguments of \a application; ends the process after --help, --version and errors.
    void process(const QCoreApplication &application);

    //! The file for all settings; empty for the one in the user's configuration folder.
    QString settingsFile() const;

    //! Whether to forget the stored toolbar layout.
    bool resetLayout() const;

    //! Whether the dialog lets the user choose a profile.
    bool profiles() const;

    //! The document to open, or an empty string.
    QString document() const;

private:
    QCommandLineParser m_parser;
    const QCommandLineOption m_settings;
    const QCommandLineOption m_resetLayout;
    const QCommandLineOption m_profiles;
};

#endif // COMMANDLINE_H
