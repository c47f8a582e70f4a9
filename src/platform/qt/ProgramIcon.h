#pragma once

#include <QIcon>
#include <QImage>

namespace marivox::qt {

// Our icon: a grey bow on a dark sea under a green sonar ring.
QImage programIconImage(int size);
QIcon programIcon();

}  // namespace marivox::qt
