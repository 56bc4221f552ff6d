// The sanitizers' settings for the soak, built into it so that `make soak`
// and the slices under ctest behave alike: a report ends the process with a
// status of its own (a run-time failure ends the program with 1), an abort
// prints where it stood (a hung run is stopped that way), and the leaks of
// the system libraries under Qt are not ours to report.
extern "C" {

const char* __asan_default_options() {
    return "exitcode=86:handle_abort=1:detect_leaks=1:abort_on_error=0:allocator_may_return_null=0";
}

const char* __ubsan_default_options() { return "print_stacktrace=1:halt_on_error=1:exitcode=86"; }

const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n"
           "leak:libfreetype\n"
           "leak:libglib-2.0\n"
           "leak:libdbus-1\n";
}
}
