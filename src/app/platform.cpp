// Windows and POSIX implementations of the application's operating-system calls.
#include "app/platform.h"

#include <csignal>

#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cstring>
#else
#include <fcntl.h>
#include <sched.h>
#include <sys/sysinfo.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cstdio>
#endif

namespace kelvane_app::platform {
namespace {

constexpr int hooked_signals[] = {SIGABRT, SIGSEGV, SIGILL, SIGFPE};
constexpr std::string_view line_end = "\r\n";

bool is_empty(const char* path) { return path == nullptr || *path == '\0'; }

}  // namespace

#ifdef _WIN32

namespace {

// Longest path CreateFileW accepts with the long-path prefix.
constexpr int max_wide_path = 32768;
// Lines up to this length go out in one WriteFile together with their line end.
constexpr std::size_t single_write_limit = 4096;

ExceptionHook vectored_hook = nullptr;
ExceptionHook unhandled_hook = nullptr;

void report(ExceptionHook hook, const EXCEPTION_POINTERS* info) {
    const EXCEPTION_RECORD* record = info != nullptr ? info->ExceptionRecord : nullptr;
    if (record == nullptr) {
        hook(0, 0);
        return;
    }
    hook(record->ExceptionCode, reinterpret_cast<std::uintptr_t>(record->ExceptionAddress));
}

LONG WINAPI on_vectored_exception(EXCEPTION_POINTERS* info) {
    report(vectored_hook, info);
    return EXCEPTION_CONTINUE_SEARCH;
}

LONG WINAPI on_unhandled_exception(EXCEPTION_POINTERS* info) {
    report(unhandled_hook, info);
    return EXCEPTION_EXECUTE_HANDLER;
}

void write_all(HANDLE file, std::string_view bytes) {
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

}  // namespace

void append_line(std::string_view line, const char* path) noexcept {
    if (is_empty(path)) return;
    // Thread-local rather than on the stack: a stack overflow is one of the crashes this must report.
    static thread_local wchar_t wide_path[max_wide_path];
    if (MultiByteToWideChar(CP_UTF8, 0, path, -1, wide_path, max_wide_path) == 0) return;
    const HANDLE file = CreateFileW(wide_path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return;
    if (line.size() + line_end.size() <= single_write_limit) {
        static thread_local char buffer[single_write_limit];
        std::memcpy(buffer, line.data(), line.size());
        std::memcpy(buffer + line.size(), line_end.data(), line_end.size());
        write_all(file, std::string_view(buffer, line.size() + line_end.size()));
    } else {
        write_all(file, line);
        write_all(file, line_end);
    }
    CloseHandle(file);
}

void install_exception_hooks(ExceptionHook vectored, ExceptionHook unhandled) noexcept {
    vectored_hook = vectored;
    unhandled_hook = unhandled;
    AddVectoredExceptionHandler(1, on_vectored_exception);
    SetUnhandledExceptionFilter(on_unhandled_exception);
}

void install_signal_hooks(SignalHook hook) noexcept {
    for (const int number : hooked_signals) std::signal(number, hook);
}

PhysicalMemory physical_memory() noexcept {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) return {};
    return {status.ullTotalPhys, status.ullAvailPhys};
}

unsigned logical_processor_count() noexcept {
    const DWORD count = GetActiveProcessorCount(ALL_PROCESSOR_GROUPS);
    return count > 0 ? static_cast<unsigned>(count) : 1;
}

#else

namespace {

constexpr std::uint64_t bytes_per_kib = 1024;

// MemAvailable counts reclaimable caches, which sysinfo's free memory leaves out.
bool read_meminfo_available(std::uint64_t& bytes) {
    std::FILE* file = std::fopen("/proc/meminfo", "re");
    if (file == nullptr) return false;
    bool found = false;
    char row[256];
    while (!found && std::fgets(row, sizeof row, file) != nullptr) {
        unsigned long long kib = 0;
        if (std::sscanf(row, "MemAvailable: %llu kB", &kib) == 1) {
            bytes = kib * bytes_per_kib;
            found = true;
        }
    }
    std::fclose(file);
    return found;
}

}  // namespace

void append_line(std::string_view line, const char* path) noexcept {
    if (is_empty(path)) return;
    const int file = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0) return;
    // One call for line and line end keeps the appended line whole.
    iovec parts[2] = {{const_cast<char*>(line.data()), line.size()},
                      {const_cast<char*>(line_end.data()), line_end.size()}};
    [[maybe_unused]] const ssize_t written = ::writev(file, parts, 2);
    ::close(file);
}

// Structured exceptions exist only on Windows: here processor faults arrive as the hooked signals,
// and a thrown language exception is no event of its own, so the vectored and unhandled stages are left out.
void install_exception_hooks(ExceptionHook, ExceptionHook) noexcept {}

void install_signal_hooks(SignalHook hook) noexcept {
    struct sigaction action {};
    action.sa_handler = hook;
    sigemptyset(&action.sa_mask);
    // One-shot, as with the C signal(): a hook that faults itself cannot loop.
    action.sa_flags = SA_RESETHAND;
    for (const int number : hooked_signals) sigaction(number, &action, nullptr);
}

PhysicalMemory physical_memory() noexcept {
    struct sysinfo info {};
    if (sysinfo(&info) != 0) return {};
    const std::uint64_t unit = info.mem_unit;
    PhysicalMemory memory{info.totalram * unit, (info.freeram + info.bufferram) * unit};
    read_meminfo_available(memory.available_bytes);
    return memory;
}

unsigned logical_processor_count() noexcept {
    cpu_set_t allowed;
    CPU_ZERO(&allowed);
    if (sched_getaffinity(0, sizeof allowed, &allowed) == 0) {
        const int count = CPU_COUNT(&allowed);
        if (count > 0) return static_cast<unsigned>(count);
    }
    const long online = sysconf(_SC_NPROCESSORS_ONLN);
    return online > 0 ? static_cast<unsigned>(online) : 1;
}

#endif

}  // namespace kelvane_app::platform
