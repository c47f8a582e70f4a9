// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "ports/Forms.h"

namespace marivox {

class Application;
class Guard;
class MessageBoxes;
class Shell;

// Opening the help document beside the game.
class HelpCommands {
  public:
    HelpCommands(Application& application, Shell& shell, MessageBoxes& boxes, Guard& guard)
        : application_(application), shell_(shell), boxes_(boxes), guard_(guard) {}

    // The Help Topics command's steps; the game screen guards them.
    void showHelpContents();
    // Asks the shell to open the document with its default action and returns at once.
    void RunHelp(const std::string& path);

  private:
    Application& application_;
    Shell& shell_;
    MessageBoxes& boxes_;
    Guard& guard_;
};

// The About box's handlers: its title and version lines.
class AboutForm : public AboutBoxEvents {
  public:
    AboutForm(AboutBox& box, Application& application) : box_(box), application_(application) {}

    void show() { box_.showModal(*this); }
    void Form_Load() override;
    void cmdOK_Click() override;

  private:
    AboutBox& box_;
    Application& application_;
};

}  // namespace marivox
