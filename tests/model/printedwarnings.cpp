// SPDX-License-Identifier: MIT

#include "printedwarnings.h"

#include <QtGlobal>

namespace {

QStringList printed;
QtMessageHandler previousHandler = nullptr;

void record(QtMsgType, const QMessageLogContext &, const QString &text)
{
    // What the platform without a display says of itself.
    if (!text.startsWith("This plugin does not support"))
        printed << text;
}

} // namespace

PrintedWarnings::PrintedWarnings()
{
    printed.clear();
    previousHandler = qInstallMessageHandler(record);
}

PrintedWarnings::~PrintedWarnings()
{
    qInstallMessageHandler(previousHandler);
}

QStringList PrintedWarnings::take()
{
    const QStringList taken = printed;
    printed.clear();
    return taken;
}
