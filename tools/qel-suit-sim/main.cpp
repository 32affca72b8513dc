// qel-suit-sim: a simulated exoskeleton for rehearsing calibration without the
// suit. It prints the pseudo-terminal to give as QEL_COM<n> and answers until
// interrupted.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include "SuitSimulator.h"

namespace {

void usage(FILE* out)
{
    std::fputs(
        "Usage: qel-suit-sim [options]\n"
        "Simulates an exoskeleton on a pseudo-terminal and prints its path.\n"
        "  --id N              identity of the suit (default 1); requests for another go unanswered\n"
        "  --any-id            answer requests that carry any identity\n"
        "  --bounds A-B:LO-HI  channels A to B move between LO and HI (also N:LO-HI); repeatable\n"
        "  --period MS         time of one swing between the bounds (default 4000)\n"
        "  --script FILE       answer with the frames of FILE in turn, 32 values a line\n"
        "  --late MS           answer MS milliseconds late\n"
        "  --drop N            leave every N-th request unanswered (1: never answer)\n"
        "  --baud B            pace the line at B baud (default 56000; 0: answer at once)\n",
        out);
}

bool number(int argc, char** argv, int& i, int& value)
{
    if (i + 1 >= argc)
        return false;
    char* end = nullptr;
    const long v = std::strtol(argv[++i], &end, 10);
    if (*end != '\0' || v < 0 || v > 10'000'000)
        return false;
    value = static_cast<int>(v);
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    SuitOptions options;
    options.baud = 56000;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        bool ok = true;
        if (arg == "--id")
            ok = number(argc, argv, i, options.id);
        else if (arg == "--any-id")
            options.anyId = true;
        else if (arg == "--bounds")
            ok = i + 1 < argc && SuitSimulator::parseBounds(argv[++i], options);
        else if (arg == "--period")
            ok = number(argc, argv, i, options.periodMs);
        else if (arg == "--late")
            ok = number(argc, argv, i, options.lateMs);
        else if (arg == "--drop")
            ok = number(argc, argv, i, options.dropEvery);
        else if (arg == "--baud")
            ok = number(argc, argv, i, options.baud);
        else if (arg == "--script") {
            std::string error;
            ok = i + 1 < argc && SuitSimulator::readScript(argv[++i], options.script, &error);
            if (!ok && !error.empty()) {
                std::fprintf(stderr, "qel-suit-sim: %s\n", error.c_str());
                return 2;
            }
        } else if (arg == "--help" || arg == "-h") {
            usage(stdout);
            return 0;
        } else
            ok = false;
        if (!ok) {
            std::fprintf(stderr, "qel-suit-sim: bad option or value: %s\n", arg.c_str());
            usage(stderr);
            return 2;
        }
    }

    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);   // before the simulator's thread starts

    SuitSimulator suit(options);
    std::string error;
    if (!suit.start(&error)) {
        std::fprintf(stderr, "qel-suit-sim: %s\n", error.c_str());
        return 1;
    }
    std::printf("%s\n", suit.devicePath().c_str());
    std::fflush(stdout);
    std::fprintf(stderr, "Suit %d on %s; stop with Ctrl+C.\n", options.id, suit.devicePath().c_str());

    int signal = 0;
    sigwait(&signals, &signal);
    suit.stop();
    std::fprintf(stderr, "%zu requests, %zu answers\n", suit.requestCount(), suit.answerCount());
    return 0;
}
