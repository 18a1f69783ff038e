// SPDX-License-Identifier: MIT

#include "rycusinterface.h"

RyCusInterface::RyCusInterface() = default;

RyCusInterface::~RyCusInterface() = default;
