// SPDX-License-Identifier: MIT
#include "Classes/record/FileReading.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <atomic>

namespace {

// Half of the work is done: the file is in memory and its value has yet to be made.
constexpr double kIsInMemory = 0.5;

} // namespace

struct FileReading::State {
    std::atomic<double> done{0};
    std::atomic<bool> isWanted{true};
    // Written before `done` becomes 1, and read only after that.
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
