#include "app/sighandler.h"

#include "app/backtrace.h"
#include "app/debugqt.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// Logging and allocating here is not async-signal-safe; it is accepted in
// exchange for a readable report on the way out.
void sig_handler(int sig)
{
    char text[128];
    snprintf(text, sizeof text, "signal %d('%s') catched", sig, strsignal(sig));
    SLOG_WARN << text;

    switch (sig) {
    case SIGSEGV:
        fputs("\n*** Segmentation fault ***\n", stderr);
        fputs(BackTrace::here(2).printable().toLocal8Bit().constData(), stderr);
        fflush(stderr);
        exit(139);
    case SIGHUP:
    case SIGINT:
    case SIGTERM:
        exit(0);
    default:
        break;
    }
}

void install_sig_handlers()
{
    signal(SIGTERM, sig_handler);
    signal(SIGHUP, sig_handler);
    signal(SIGSEGV, sig_handler);
}
