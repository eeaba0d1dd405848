// ThreadSanitizer sees only what is built with it, and Debian's Qt is not: a
// lock taken or a thread ended inside libQt6Core leaves no trace. The reports
// below come from such places alone; the polling engine's own locks are the
// standard library's, which the sanitizer follows.
extern "C" const char *__tsan_default_options()
{
    // Frees and waits inside Qt, such as those of a QThread's end after its
    // run(), are not ordered by anything the sanitizer can see.
    return "ignore_noninstrumented_modules=1";
}

extern "C" const char *__tsan_default_suppressions()
{
    return
        // QThread's end: the joiner's wait runs in libQt6Core.
        "race:QWaitCondition::~QWaitCondition\n"
        // glibc's time zone lock behind QDateTime's local time.
        "race:tzset_internal\n"
        // The glib event dispatcher of Qt's event loops.
        "race:libglib-2.0.so\n"
        // QtTest's watchdog thread, ended and freed inside libQt6Test.
        "called_from_lib:libQt6Test.so\n";
}
