// From a measurement to what the user sees of it.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "measure/figures.h"

namespace kfm::tool {

struct ReportOptions {
    std::optional<Format> format;   // none: a page
    std::string picture;            // none if empty
    std::vector<std::string> peerFolders;
};

// Measures and tells the figures. Whether a picture can be drawn is known before.
void report(const ReportOptions& options, const Measure& measure, std::ostream& page,
            const std::function<std::vector<Figure>()>& figures);

}   // namespace kfm::tool
