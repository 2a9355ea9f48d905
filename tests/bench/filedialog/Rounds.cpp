#include "Rounds.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace {

double MedianOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

class Rounds {
  public:
    Rounds(int count, std::function<double(Whose)> seconds) : m_count(count), m_seconds(std::move(seconds)) {}

    double Of(Whose whose) {
        if (Values(Whose::Bare).empty())
            Measure();
        return MedianOf(Values(whose));
    }

  private:
    void Measure() {
        for (int round = 0; round < m_count; ++round) {
            std::array order{Whose::Bare, Whose::Ours};
            if (round % 2)
                std::swap(order[0], order[1]);
            for (const Whose whose : order)
                Values(whose).push_back(m_seconds(whose));
        }
    }
    std::vector<double>& Values(Whose whose) { return whose == Whose::Ours ? m_ours : m_bare; }

    int m_count;
    std::function<double(Whose)> m_seconds;
    std::vector<double> m_ours;
    std::vector<double> m_bare;
};

} // namespace

void RegisterInTurn(const std::string& name, int rounds, double goal, std::function<double(Whose)> seconds) {
    const auto measured = std::make_shared<Rounds>(rounds, std::move(seconds));
    for (const Whose whose : {Whose::Bare, Whose::Ours}) {
        const auto row = [=](benchmark::State& state) {
            for (auto _ : state)
                state.SetIterationTime(measured->Of(whose));
            if (whose == Whose::Ours)
                state.counters["goal_ratio"] = goal;
        };
        benchmark::RegisterBenchmark(
            (name + (whose == Whose::Bare ? "/peer:bare with hook" : "/ours")).c_str(), row)
            ->UseManualTime()
            ->Iterations(1);
    }
}
