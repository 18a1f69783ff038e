// SPDX-License-Identifier: MIT

#ifndef RYCTOOLBARPAGE_H
#define RYCTOOLBARPAGE_H

#include "recordingpage.h"

/*
 * Stands in for the toolbar page.
 */
class RyCToolBarPage : public RecordingPage
{
public:
    explicit RyCToolBarPage(RyAbstatcManager *manager)
        : RecordingPage("toolbar", manager)
    {
    }
};

#endif // RYCTOOLBARPAGE_H
