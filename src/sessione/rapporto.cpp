// The clock of the reports.
#include "sessione/rapporto.h"

namespace ombrelia {

std::tm AdessoLocale() {
    const std::time_t t = std::time(nullptr);
    std::tm locale{};
#ifdef _WIN32
    localtime_s(&locale, &t);
#else
    localtime_r(&t, &locale);
#endif
    return locale;
}

}  // namespace ombrelia
