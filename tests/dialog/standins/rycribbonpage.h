// SPDX-License-Identifier: MIT

#ifndef RYCRIBBONPAGE_H
#define RYCRIBBONPAGE_H

#include "recordingpage.h"

/*
 * Stands in for the ribbon page.
 */
class RyCRibbonPage : public RecordingPage
{
public:
    explicit RyCRibbonPage(RyAbstatcManager *manager)
        : RecordingPage("ribbon", manager)
    {
    }
};

#endif // RYCRIBBONPAGE_H
