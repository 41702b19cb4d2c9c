extern "C" void __lsan_do_leak_check();

// Leaks are told when the program's own destructors have run and those of the libraries have not: in between Qt takes
// its key away from threads that end just then, a connection of its own among them, and what they hold counts as lost
// where the sanitizer comes last of all. That is so once a library that needs it was loaded late.
__attribute__((destructor)) static void checkLeaks() {
    __lsan_do_leak_check();
}
