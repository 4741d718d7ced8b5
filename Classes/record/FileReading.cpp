// SPDX-License-Identifier: MIT
#include "Classes/record/FileReading.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <atomic>

namespace {

// The file is in memory by then, and its value is still to be made.
constexpr double kIsInMemory = 0.5;

} // namespace

struct FileReading::State {
    std::atomic<double> done{0};
    std::atomic<bool> isWanted{true};
    // Written before `done` becomes 1, and read afterwards.
    std::optional<Result<PropertyListValue>> result;
};

FileReading::FileReading(const QString& path, const BackgroundMove::Background& background)
    : m_state(std::make_shared<State>()) {
    background([state = m_state, path] {
        state->result = PropertyList::readFile(path, [&](double done) {
            state->done = done * kIsInMemory;
            return state->isWanted.load();
        });
        state->done = 1;
    });
}

FileReading::~FileReading() {
    m_state->isWanted = false;
}

double FileReading::done() const {
    return m_state->done;
}

Result<PropertyListValue> FileReading::take() {
    return *std::exchange(m_state->result, std::nullopt);
}
