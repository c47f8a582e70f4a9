// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinWaveOut.h"

#include <windows.h>
// After windows.h, which it needs.
#include <mmsystem.h>

#include <array>
#include <vector>

#include "adapters/audio/WavFile.h"

namespace marivox::windows {
namespace {

// Eight buffers of the player's 10 ms chunks: 80 ms ahead, as on the Linux sound server.
constexpr std::size_t kBuffers = 8;

class WaveOutStream final : public audio::AudioStream {
  public:
    WaveOutStream(HWAVEOUT device, HANDLE done) : device_(device), done_(done) {}
    ~WaveOutStream() override {
        waveOutReset(device_);
        for (Buffer& buffer : buffers_) {
            unprepare(buffer);
        }
        waveOutClose(device_);
        CloseHandle(done_);
    }
    WaveOutStream(const WaveOutStream&) = delete;
    WaveOutStream& operator=(const WaveOutStream&) = delete;

    bool write(std::span<const std::int16_t> samples) override {
        Buffer& buffer = buffers_[next_];
        if (!waitUntilDone(buffer)) {
            return false;
        }
        unprepare(buffer);
        buffer.samples.assign(samples.begin(), samples.end());
        buffer.header = WAVEHDR{};
        buffer.header.lpData = reinterpret_cast<LPSTR>(buffer.samples.data());
        buffer.header.dwBufferLength = static_cast<DWORD>(samples.size_bytes());
        if (waveOutPrepareHeader(device_, &buffer.header, sizeof(WAVEHDR)) != MMSYSERR_NOERROR) {
            return false;
        }
        buffer.prepared = true;
        if (waveOutWrite(device_, &buffer.header, sizeof(WAVEHDR)) != MMSYSERR_NOERROR) {
            return false;
        }
        next_ = (next_ + 1) % kBuffers;
        return true;
    }

    // The device plays whatever it has been given, however short.
    bool endOfSounds() override { return true; }

    bool drain() override {
        for (Buffer& buffer : buffers_) {
            if (!waitUntilDone(buffer)) {
                return false;
            }
        }
        return true;
    }

    std::chrono::microseconds untilHeard() override {
        std::size_t waiting = 0;
        for (const Buffer& buffer : buffers_) {
            if (buffer.prepared && (buffer.header.dwFlags & WHDR_DONE) == 0) {
                waiting += buffer.samples.size();
            }
        }
        return std::chrono::microseconds(waiting * 1'000'000 / audio::kOutputRate);
    }

  private:
    struct Buffer {
        WAVEHDR header{};
        std::vector<std::int16_t> samples;
        bool prepared = false;
    };

    // A device that has not finished a 10 ms buffer in five seconds is gone.
    bool waitUntilDone(const Buffer& buffer) {
        for (int waited = 0; buffer.prepared && (buffer.header.dwFlags & WHDR_DONE) == 0;
             ++waited) {
            if (waited == 50) {
                return false;
            }
            WaitForSingleObject(done_, 100);
        }
        return true;
    }

    void unprepare(Buffer& buffer) {
        if (buffer.prepared) {
            waveOutUnprepareHeader(device_, &buffer.header, sizeof(WAVEHDR));
            buffer.prepared = false;
        }
    }

    HWAVEOUT device_;
    HANDLE done_;
    std::array<Buffer, kBuffers> buffers_;
    std::size_t next_ = 0;
};

}  // namespace

audio::AudioConnector waveOutConnector() {
    return []() -> std::unique_ptr<audio::AudioStream> {
        WAVEFORMATEX format{};
        format.wFormatTag = WAVE_FORMAT_PCM;
        format.nChannels = 1;
        format.nSamplesPerSec = audio::kOutputRate;
        format.wBitsPerSample = 16;
        format.nBlockAlign = 2;
        format.nAvgBytesPerSec = audio::kOutputRate * 2;
        HANDLE done = CreateEventW(nullptr, FALSE, FALSE, nullptr);
        HWAVEOUT device = nullptr;
        if (waveOutOpen(&device, WAVE_MAPPER, &format, reinterpret_cast<DWORD_PTR>(done), 0,
                        CALLBACK_EVENT) != MMSYSERR_NOERROR) {
            CloseHandle(done);
            return nullptr;
        }
        return std::make_unique<WaveOutStream>(device, done);
    };
}

}  // namespace marivox::windows
