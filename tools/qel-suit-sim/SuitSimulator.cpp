#include "SuitSimulator.h"
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sstream>
#include <termios.h>
#include <unistd.h>

namespace {

std::int64_t monotonicNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

bool fail(std::string* error, const std::string& what)
{
    if (error)
        *error = what + ": " + std::strerror(errno);
    return false;
}

}  // namespace

SuitSimulator::SuitSimulator(SuitOptions options) : m_options(std::move(options)) {}

SuitSimulator::~SuitSimulator() { stop(); }

double SuitSimulator::nowMs() const { return (monotonicNs() - m_startNs) / 1e6; }

bool SuitSimulator::start(std::string* error)
{
    if (m_running)
        return true;
    m_master = posix_openpt(O_RDWR | O_NOCTTY);
    if (m_master < 0)
        return fail(error, "posix_openpt");
    if (grantpt(m_master) != 0 || unlockpt(m_master) != 0)
        return fail(error, "grantpt");
    char name[128] = {};
    if (ptsname_r(m_master, name, sizeof name) != 0)
        return fail(error, "ptsname");
    m_path = name;
    fcntl(m_master, F_SETFL, fcntl(m_master, F_GETFL) | O_NONBLOCK);
    // The suit's end stays open and raw: no echo, no line editing, and the
    // line does not hang up while nobody has the port open.
    m_slave = ::open(name, O_RDWR | O_NOCTTY);
    if (m_slave < 0)
        return fail(error, "open " + m_path);
    termios raw{};
    tcgetattr(m_slave, &raw);
    cfmakeraw(&raw);
    tcsetattr(m_slave, TCSANOW, &raw);
    if (pipe(m_wake) != 0)
        return fail(error, "pipe");
    m_startNs = monotonicNs();
    m_running = true;
    m_thread = std::thread(&SuitSimulator::run, this);
    return true;
}

void SuitSimulator::stop()
{
    if (m_running.exchange(false)) {
        const char c = 0;
        [[maybe_unused]] auto n = ::write(m_wake[1], &c, 1);
        m_thread.join();
    }
    for (int* fd : {&m_master, &m_slave, &m_wake[0], &m_wake[1]})
        if (*fd >= 0) {
            ::close(*fd);
            *fd = -1;
        }
}

void SuitSimulator::send(const std::vector<std::uint8_t>& bytes)
{
    if (m_master >= 0)
        [[maybe_unused]] auto n = ::write(m_master, bytes.data(), bytes.size());
}

std::vector<SuitRequest> SuitSimulator::requests() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_requests;
}

SuitFrame SuitSimulator::sampleAt(double ms) const
{
    SuitFrame frame;
    const double pi = 3.14159265358979323846;
    for (int c = 0; c < 32; ++c) {
        const double lo = m_options.low[c], hi = m_options.high[c];
        const double phase = 2 * pi * ms / std::max(1, m_options.periodMs) + c * 0.7;
        const double v = lo + (hi - lo) * (1 - std::cos(phase)) / 2;
        frame[c] = static_cast<std::uint8_t>(std::clamp(std::lround(v), 0L, 255L));
    }
    return frame;
}

void SuitSimulator::run()
{
    struct Answer {
        double due;
        std::size_t index;
    };
    std::deque<Answer> pending;
    std::vector<std::uint8_t> in;
    const double byteMs = m_options.baud > 0 ? 10000.0 / m_options.baud : 0;
    double lineFree = 0;
    std::size_t answersQueued = 0;

    while (m_running) {
        timespec wait{0, 100'000'000};
        if (!pending.empty()) {
            const double ms = std::max(0.0, pending.front().due - nowMs());
            wait.tv_sec = static_cast<time_t>(ms / 1000);
            wait.tv_nsec = static_cast<long>((ms - wait.tv_sec * 1000.0) * 1e6);
        }
        pollfd fds[2] = {{m_master, POLLIN, 0}, {m_wake[0], POLLIN, 0}};
        ppoll(fds, 2, &wait, nullptr);
        if (!m_running)
            break;

        if (fds[0].revents & POLLIN) {
            std::uint8_t buf[512];
            const ssize_t n = ::read(m_master, buf, sizeof buf);
            if (n > 0)
                in.insert(in.end(), buf, buf + n);
            const double received = nowMs();
            while (in.size() >= 4) {
                if (in[0] != 0x40) {   // not the start of a request: pass the byte over
                    in.erase(in.begin());
                    continue;
                }
                SuitRequest request;
                std::copy_n(in.begin(), 4, request.begin());
                in.erase(in.begin(), in.begin() + 4);
                {
                    std::lock_guard<std::mutex> lock(m_mutex);
                    m_requests.push_back(request);
                }
                const std::size_t count = ++m_requestCount;
                const bool forUs = m_options.anyId || request[1] == m_options.id;
                const bool dropped = m_options.dropEvery > 0 && count % m_options.dropEvery == 0;
                if (!forUs || dropped)
                    continue;
                const double start = std::max(received + 4 * byteMs + m_options.lateMs, lineFree);
                lineFree = start + 32 * byteMs;
                pending.push_back({lineFree, answersQueued++});
            }
        }

        const double now = nowMs();
        while (!pending.empty() && pending.front().due <= now) {
            const Answer answer = pending.front();
            pending.pop_front();
            const SuitFrame frame = m_options.script.empty()
                ? sampleAt(now)
                : m_options.script[answer.index % m_options.script.size()];
            if (::write(m_master, frame.data(), frame.size()) == static_cast<ssize_t>(frame.size()))
                ++m_answerCount;
        }
    }
}

bool SuitSimulator::readScript(const std::string& path, std::vector<SuitFrame>& frames, std::string* error)
{
    std::ifstream file(path);
    if (!file) {
        if (error)
            *error = "cannot read " + path;
        return false;
    }
    std::string line;
    int number = 0;
    while (std::getline(file, line)) {
        ++number;
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream fields(line);
        std::vector<long> values;
        std::string field;
        while (fields >> field) {
            if (values.empty() && field[0] == '#')
                break;
            char* end = nullptr;
            const long v = std::strtol(field.c_str(), &end, 0);
            if (*end != '\0' || v < 0 || v > 255) {
                if (error)
                    *error = path + ":" + std::to_string(number) + ": not a byte: " + field;
                return false;
            }
            values.push_back(v);
        }
        if (values.empty())
            continue;
        if (values.size() != 32) {
            if (error)
                *error = path + ":" + std::to_string(number) + ": a frame has 32 values";
            return false;
        }
        SuitFrame frame;
        std::copy(values.begin(), values.end(), frame.begin());
        frames.push_back(frame);
    }
    if (frames.empty()) {
        if (error)
            *error = path + ": no frames";
        return false;
    }
    return true;
}

bool SuitSimulator::parseBounds(const std::string& text, SuitOptions& options)
{
    int first = 0, last = 0, lo = 0, hi = 0;
    char tail = 0;
    if (std::sscanf(text.c_str(), "%d-%d:%d-%d%c", &first, &last, &lo, &hi, &tail) == 4) {
    } else if (std::sscanf(text.c_str(), "%d:%d-%d%c", &first, &lo, &hi, &tail) == 3) {
        last = first;
    } else {
        return false;
    }
    if (first < 1 || last > 32 || first > last || lo < 0 || hi > 255 || lo > hi)
        return false;
    for (int c = first; c <= last; ++c) {
        options.low[c - 1] = static_cast<std::uint8_t>(lo);
        options.high[c - 1] = static_cast<std::uint8_t>(hi);
    }
    return true;
}
