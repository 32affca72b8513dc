#pragma once
// A simulated exoskeleton on a pseudo-terminal. Give the path it prints as the
// device of a COM port (QEL_COM1=/dev/pts/5) and the calibration dialog talks
// to it as to the suit: every request of 4 bytes (0x40, identity, 0x20, 0x00)
// is answered with a sample frame of 32 bytes, byte n being channel n + 1.
//
// The values move smoothly between the bounds of each channel, or come from a
// script of frames. The suit can answer late, drop answers, answer requests
// that carry another identity, and pace its answers at a line speed.
#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

using SuitFrame = std::array<std::uint8_t, 32>;
using SuitRequest = std::array<std::uint8_t, 4>;

struct SuitOptions {
    int id = 1;                  // the suit's identity
    bool anyId = false;          // also answer requests that carry another identity
    int lateMs = 0;              // extra time before each answer
    int dropEvery = 0;           // leave every n-th request unanswered (1: never answer)
    int baud = 0;                // pace the line at this speed, 10 bits a byte; 0: answer at once
    int periodMs = 4000;         // time of one swing between the bounds
    SuitFrame low{};             // bounds per channel, index 0 is channel 1
    SuitFrame high = filled(255);
    std::vector<SuitFrame> script;   // frames to answer with in turn, over and over

    static SuitFrame filled(std::uint8_t value)
    {
        SuitFrame f;
        f.fill(value);
        return f;
    }
};

class SuitSimulator {
public:
    explicit SuitSimulator(SuitOptions options = {});
    ~SuitSimulator();
    SuitSimulator(const SuitSimulator&) = delete;
    SuitSimulator& operator=(const SuitSimulator&) = delete;

    // Opens the pseudo-terminal and starts answering from a thread of its own.
    bool start(std::string* error = nullptr);
    void stop();
    // The device to open, such as "/dev/pts/5".
    std::string devicePath() const { return m_path; }

    // Sends bytes at once, as they are, outside any exchange.
    void send(const std::vector<std::uint8_t>& bytes);

    // What has happened so far.
    std::vector<SuitRequest> requests() const;
    std::size_t requestCount() const { return m_requestCount.load(); }
    std::size_t answerCount() const { return m_answerCount.load(); }

    // The frame of values the suit shows ms into its run.
    SuitFrame sampleAt(double ms) const;

    // Reads a script: one frame a line, 32 numbers 0 to 255 split by blanks or
    // commas; empty lines and lines starting with # are passed over.
    static bool readScript(const std::string& path, std::vector<SuitFrame>& frames, std::string* error);
    // Parses "from-to:low-high" or "channel:low-high" (channels 1 to 32) into the bounds.
    static bool parseBounds(const std::string& text, SuitOptions& options);

private:
    void run();
    double nowMs() const;

    SuitOptions m_options;
    int m_master = -1;
    int m_slave = -1;        // kept open so that the line stays up between users
    int m_wake[2] = {-1, -1};
    std::string m_path;
    std::thread m_thread;
    std::atomic<bool> m_running{false};
    std::atomic<std::size_t> m_requestCount{0};
    std::atomic<std::size_t> m_answerCount{0};
    mutable std::mutex m_mutex;
    std::vector<SuitRequest> m_requests;
    std::int64_t m_startNs = 0;
};
