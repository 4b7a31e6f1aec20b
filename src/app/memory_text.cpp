// Memory amounts as text.
#include "app/memory_text.h"

namespace kelvane_app {
namespace {

constexpr double kBytesPerGigabyte = 1024.0 * 1024.0 * 1024.0;
constexpr double kWholeGigabytesFrom = 10.0;

}  // namespace

QString memoryText(std::uint64_t bytes) {
    if (bytes == 0) return QStringLiteral("—");
    const double gigabytes = static_cast<double>(bytes) / kBytesPerGigabyte;
    const int decimals = gigabytes < kWholeGigabytesFrom ? 1 : 0;
    return QStringLiteral("%1 GB").arg(gigabytes, 0, 'f', decimals);
}

}  // namespace kelvane_app
