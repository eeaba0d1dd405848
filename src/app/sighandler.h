#ifndef SIGHANDLER_H
#define SIGHANDLER_H

// Logs the signal; a segmentation fault prints the back trace and exits with
// 139, hang-up, interrupt and termination exit with 0, others are ignored.
void sig_handler(int sig);

// Installs sig_handler for SIGTERM, SIGHUP and SIGSEGV.
void install_sig_handlers();

#endif // SIGHANDLER_H
