#include "InTurn.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kPeer = 0;
constexpr std::size_t kOurs = 1;

double medianOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

class Measured {
  public:
    Measured(int rounds, Timed peer, Timed ours)
        : m_rounds(rounds), m_timed{std::move(peer), std::move(ours)} {}

    // Zero when one of the runs failed.
    double medianSeconds(std::size_t side) {
        if (!std::exchange(m_done, true))
            measure();
        return m_seconds[side].empty() ? 0 : medianOf(m_seconds[side]);
    }

  private:
    void measure() {
        for (const Timed& timed : m_timed)
            timed();
        for (int round = 0; round < m_rounds; ++round) {
            const std::size_t first = round % 2 ? kOurs : kPeer;
            for (const std::size_t side : {first, 1 - first}) {
                const double seconds = m_timed[side]();
                if (seconds <= 0)
                    return m_seconds[side].clear();
                m_seconds[side].push_back(seconds);
            }
        }
    }

    int m_rounds;
    std::array<Timed, 2> m_timed;
    std::array<std::vector<double>, 2> m_seconds;
    bool m_done = false;
};

} // namespace

bool registerInTurn(const InTurn& what, Timed peer, Timed ours) {
    const auto measured = std::make_shared<Measured>(what.rounds, std::move(peer), std::move(ours));
    const auto add = [&](const std::string& side, std::size_t index, double goal) {
        benchmark::RegisterBenchmark((what.topic + "/" + side).c_str(),
                                     [=](benchmark::State& state) {
                                         for (auto _ : state) {
                                             const double seconds = measured->medianSeconds(index);
                                             if (seconds <= 0)
                                                 return state.SkipWithError("a run failed");
                                             state.SetIterationTime(seconds);
                                         }
                                         if (goal > 0)
                                             state.counters["goal_ratio"] = goal;
                                     })
            ->UseManualTime()
            ->Iterations(1);
    };
    add("peer:" + what.peerName, kPeer, 0);
    add("ours", kOurs, what.goalRatio);
    return true;
}
