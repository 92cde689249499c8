#include "app/unattended/ProgressPrinter.h"

namespace app {

void ProgressPrinter::operator()(const Event& event) {
    const auto& name = event.at("event");
    if (name == "status") {
        m_out << event.at("text").get<std::string>() << std::endl;
        m_quarters = 0;
    } else if (name == "question") {
        m_out << event.at("message").get<std::string>() << " "
              << event.at("answer").get<std::string>() << std::endl;
    } else if (name == "progress" && event.contains("total")) {
        const auto total = event.at("total").get<std::uint64_t>();
        const auto quarters = event.at("done").get<std::uint64_t>() * 4 / total;
        if (quarters > m_quarters)
            m_out << "  " << quarters * 25 << " % of " << (total + 500'000) / 1'000'000 << " MB"
                  << std::endl;
        m_quarters = quarters;
    }
}

} // namespace app
