// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

class QTextBrowser;

namespace marivox::qt {

// A window that shows the help document so a screen reader can read it with the keyboard:
// the focus is in the text, the arrows move a caret through it, links are reachable with Tab.
class HelpViewer : public QMainWindow {
    Q_OBJECT
  public:
    explicit HelpViewer(const QString& path, QWidget* parent = nullptr);

    QTextBrowser* browser() const { return browser_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QTextBrowser* browser_;
};

}  // namespace marivox::qt
