// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "adapters/speechd/VoiceSettings.h"

namespace marivox::speechd {

// One client connection to speech-dispatcher, the speech service Orca uses. It connects on
// demand and forgets a connection that failed, so the next call tries afresh. Every
// failure is thrown as a Failure a blind player can act on; none blocks for long.
class SpeechdConnection {
  public:
    explicit SpeechdConnection(std::string clientName = "marivox");
    ~SpeechdConnection();
    SpeechdConnection(const SpeechdConnection&) = delete;
    SpeechdConnection& operator=(const SpeechdConnection&) = delete;

    void connect();
    bool isConnected() const;
    // Queues text after what is being said; never cuts anything off.
    void say(std::string_view text);
    // Silences what is being said and drops what this client has queued.
    void cancel();
    // Speaks from now on in this voice. Settings that change start a new connection, so
    // whatever is no longer given falls back to the service's default.
    void useVoice(const VoiceSettings& voice);

  private:
    [[noreturn]] void fail(const std::string& what);
    void close();
    void applyVoice();

    struct Client;  // libspeechd's connection, kept out of this header
    std::string clientName_;
    std::unique_ptr<Client> client_;
    bool saidSinceCancel_ = true;  // until a stop, assume something may still be speaking
    VoiceSettings voice_;
};

// Where the game looks for the speech service, as a player would read it.
std::string speechServiceAddress();

}  // namespace marivox::speechd
