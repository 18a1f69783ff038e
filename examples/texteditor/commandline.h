// SPDX-License-Identifier: MIT

#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>

class QCoreApplication;

/*!
 * \brief What the application was started with.
 */
class CommandLine
{
public:
    CommandLine();

    //! Reads \a arguments; returns false if they are wrong.
    bool parse(const QStringList &arguments);

    //! Reads the arguments of \a application; ends the process after --help, --version and errors.
    void process(const QCoreApplication &application);

    //! The file for all settings; empty for the one in the user's configuration folder.
    QString settingsFile() const;

    //! Whether the stored toolbar layout is to be forgotten.
    bool resetLayout() const;

    //! The document to open, or an empty string.
    QString document() const;

private:
    QCommandLineParser m_parser;
    const QCommandLineOption m_settings;
    const QCommandLineOption m_resetLayout;
};

#endif // COMMANDLINE_H
