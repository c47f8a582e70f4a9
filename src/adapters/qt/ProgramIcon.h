// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QImage>

namespace marivox::qt {

// Our icon: a grey bow on a dark sea under a green sonar ring.
QImage programIconImage(int size);
QIcon programIcon();

}  // namespace marivox::qt
