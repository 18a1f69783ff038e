// SPDX-License-Identifier: MIT

#include "sequence.h"

#include "dialogsteps.h"
#include "hoststeps.h"
#include "managercomparison.h"
#include "printedwarnings.h"

QString Sequence::run(const Script &script, const Meddle &meddle)
{
    const PrintedWarnings warnings;
    Differences differences;
    Stage stage;
    HostSteps hostSteps(&stage, &differences);
    DialogSteps dialogSteps(&stage, &differences);
    ManagerComparison managerComparison(&stage, &differences);
    for (std::size_t place = 0; place < script.size(); ++place) {
        const Step &step = script[place];
        if (!hostSteps.run(step))
            dialogSteps.run(step);
        stage.updateToolBars();
        if (meddle && place + 1 == script.size())
            meddle(stage);
        managerComparison.run();
        dialogSteps.compare();
        if (!differences.lines.isEmpty()) {
            return QString("step %1 (%2): %3")
                .arg(place + 1)
                .arg(QString::fromStdString(step.text()), differences.lines.join("\n  "));
        }
    }
    return QString();
}
