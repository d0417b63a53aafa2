#include "measure/speed.h"

#include <algorithm>

#include "progress.h"
#include "timer.h"

namespace kfm::tool {

const Measure speedMeasure = {
    .title = "Time of one call in ns", .ours = "ns", .member = "ns", .hasLargest = false};

namespace {

void measureOnce(const Subject& subject, const bench::PeerPlan& peer, int batches, Figure& figure) {
    bench::Subject mine(subject.repeat());
    std::vector<bench::Subject*> inTurns = {&mine};
    std::optional<bench::Subject> theirs;
    if (peer) inTurns.push_back(&theirs.emplace(peer.repeat));
    bench::runInterleaved(inTurns, batches);
    figure.ours = std::min(figure.ours, mine.minimum());
    if (theirs)
        figure.peer = figure.peer ? std::min(*figure.peer, theirs->minimum()) : theirs->minimum();
}

}   // namespace

std::vector<Figure> measureSpeed(std::span<const Subject> subjects, int batches, int rounds) {
    const bench::PinnedToCore pinned(bench::lastCore());
    Progress progress;
    std::vector<Figure> figures;
    std::vector<bench::PeerPlan> peers;
    const auto done = [&](std::size_t calls) {
        progress.update(static_cast<double>(calls) / (subjects.size() * (rounds + 1.0)), calls);
    };
    for (const Subject& subject : subjects) {   // the search for a plan takes as long as a round
        peers.push_back(subject.peer());
        figures.push_back(figureOf(subject));
        figures.back().peerName = peers.back().name;
        done(peers.size());
    }
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < subjects.size(); ++i) {
            measureOnce(subjects[i], peers[i], batches, figures[i]);
            done((round + 1) * subjects.size() + i + 1);
        }
    return figures;
}

}   // namespace kfm::tool
