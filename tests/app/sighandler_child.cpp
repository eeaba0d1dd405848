// Child process for tst_sighandler: sets up logging and the signal handlers as
// the program does, then meets the situation named on the command line.
#include "app/debugqt.h"
#include "app/sighandler.h"

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char *argv[])
{
    if (argc < 2)
        return 2;
    DebugQt::instance(DebugQt::StartFlags, nullptr)->setEmitMessages(true);
    install_sig_handlers();

    const char *mode = argv[1];
    const int sig = argc > 2 ? atoi(argv[2]) : 0;
    if (!strcmp(mode, "raise")) {
        raise(sig);
    } else if (!strcmp(mode, "call")) {
        sig_handler(sig);
    } else if (!strcmp(mode, "segv")) {
        // A real fault, at an address that is neither null nor misaligned.
        volatile int *p = reinterpret_cast<int *>(uintptr_t(argc) * 8);
        *p = 1;
    } else if (!strcmp(mode, "fatal")) {
        DebugQt::msg_handler(QtFatalMsg, QMessageLogContext(), QString::fromLatin1(argv[2]));
    } else {
        return 2;
    }
    fputs("survived\n", stderr);
    return 3;
}
