// Rows that say which frame they belong to and where in it they stand, as this tool writes them:
// a frame of another length than is asked for, or a row that is missing, must not go unseen.
#pragma once

#include <cstdint>
#include <string>

namespace kfm::tool {

class FrameLabels {
public:
    explicit FrameLabels(std::int64_t frameLength) : length_(frameLength) {}

    // What is wrong with a row that comes next, if anything.
    std::string next(std::int64_t frame, std::int64_t index);
    // What is wrong with ending here.
    std::string end() const;

private:
    std::string wanted() const;

    std::int64_t length_;
    bool began_ = false;
    std::int64_t frame_ = 0, index_ = 0;   // of the row that has to come
};

}   // namespace kfm::tool
