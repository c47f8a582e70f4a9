// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/speechd/SpeechdConnection.h"

#include <libspeechd.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <csignal>
#include <cstdlib>
#include <mutex>

#include "ports/Failure.h"

namespace marivox::speechd {
namespace {

// A server that stops answering must not freeze the game: every read and write on the
// connection gives up after this long and the call fails instead.
constexpr int kSocketTimeoutSeconds = 2;

// Writing to a server that has died raises SIGPIPE, whose default action would end the game
// without a word; the write's error is what we want instead.
void ignoreBrokenPipes() {
    static std::once_flag once;
    std::call_once(once, [] { std::signal(SIGPIPE, SIG_IGN); });
}

void boundSocketWaits(SPDConnection* connection) {
    timeval timeout{kSocketTimeoutSeconds, 0};
    setsockopt(connection->socket, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
    setsockopt(connection->socket, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof timeout);
}

}  // namespace

struct SpeechdConnection::Client {
    SPDConnection* connection = nullptr;
};

std::string speechServiceAddress() {
    const char* address = std::getenv("SPEECHD_ADDRESS");
    return address != nullptr && *address != '\0' ? address : "the default address";
}

SpeechdConnection::SpeechdConnection(std::string clientName)
    : clientName_(std::move(clientName)), client_(std::make_unique<Client>()) {
    ignoreBrokenPipes();
}

SpeechdConnection::~SpeechdConnection() {
    close();
}

bool SpeechdConnection::isConnected() const {
    return client_->connection != nullptr;
}

void SpeechdConnection::close() {
    if (client_->connection != nullptr) {
        spd_close(client_->connection);
        client_->connection = nullptr;
    }
}

void SpeechdConnection::fail(const std::string& what) {
    close();
    throw Failure(FailureNumber::SpeechUnavailable, "The speech service (speech-dispatcher at " +
                                                        speechServiceAddress() + ") " + what);
}

void SpeechdConnection::connect() {
    if (client_->connection != nullptr) {
        return;
    }
    // With an address of its own (a private server) the service is not started for us; at
    // the default address it is, as for any speech client of the desktop.
    const char* address = std::getenv("SPEECHD_ADDRESS");
    const int autospawn = address == nullptr || *address == '\0' ? 1 : 0;
    char* error = nullptr;
    client_->connection = spd_open2(clientName_.c_str(), "main", nullptr, SPD_MODE_SINGLE, nullptr,
                                    autospawn, &error);
    if (client_->connection == nullptr) {
        const std::string reason = error != nullptr ? error : "no reason given";
        std::free(error);
        fail("could not be reached: " + reason);
    }
    std::free(error);
    boundSocketWaits(client_->connection);
    applyVoice();
}

void SpeechdConnection::useVoice(const VoiceSettings& voice) {
    if (voice == voice_) {
        return;
    }
    voice_ = voice;
    close();  // the next call connects afresh in the new voice
}

// In the order Orca sets them: the synthesizer, then the language and the voice within it,
// then rate, pitch and volume. A setting the service refuses leaves its default: the text is
// still worth saying.
void SpeechdConnection::applyVoice() {
    SPDConnection* connection = client_->connection;
    if (!voice_.outputModule.empty()) {
        spd_set_output_module(connection, voice_.outputModule.c_str());
    }
    if (!voice_.language.empty()) {
        spd_set_language(connection, voice_.language.c_str());
    }
    if (!voice_.synthesisVoice.empty()) {
        spd_set_synthesis_voice(connection, voice_.synthesisVoice.c_str());
    }
    if (voice_.rate) {
        spd_set_voice_rate(connection, *voice_.rate);
    }
    if (voice_.pitch) {
        spd_set_voice_pitch(connection, *voice_.pitch);
    }
    if (voice_.volume) {
        spd_set_volume(connection, *voice_.volume);
    }
}

void SpeechdConnection::say(std::string_view text) {
    connect();
    const std::string terminated(text);
    const int result = spd_say(client_->connection, SPD_MESSAGE, terminated.c_str());
    if (result < 0) {
        fail("did not take the text; the connection was lost");
    }
    saidSinceCancel_ = true;
}

void SpeechdConnection::cancel() {
    // A key often stops speech twice before speaking; with nothing of ours said since the
    // last stop there is nothing to cut off, and the round trip would delay the answer.
    if (isConnected() && !saidSinceCancel_) {
        return;
    }
    connect();
    if (spd_cancel(client_->connection) < 0) {
        fail("did not stop speaking; the connection was lost");
    }
    saidSinceCancel_ = false;
}

}  // namespace marivox::speechd
