// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/SwitchTeller.h"

// Passes on what another source says is in front, except while something covers it: then the cover is in
// front, and changes behind it are not reported.
class FrontCover : public SwitchTeller {
public:
    const std::optional<ApplicationRecord>& activeApplication() const override {
        return m_cover ? m_cover : m_covered.activeApplication();
    }

    bool isUndecided() const override { return !m_cover && m_covered.isUndecided(); }
    QString nameOfProgram(const QString& path) const override { return m_covered.nameOfProgram(path); }
    QString describe() const override { return m_covered.describe(); }
    QString obstacle() const override { return m_covered.obstacle(); }

protected:
    // `covered` outlives this object.
    FrontCover(FrontApplication& covered, std::optional<ApplicationRecord> cover)
        : m_covered(covered)
        , m_cover(std::move(cover))
        , m_coveredSwitches(covered.observeSwitches([this] {
            if (!m_cover)
                tellOfSwitch();
        })) {}

    // Absent: nothing covers any more. Reports a switch if this is a change.
    void cover(const std::optional<ApplicationRecord>& cover) {
        if (m_cover == cover)
            return;
        m_cover = cover;
        tellOfSwitch();
    }

    bool isCovered() const { return m_cover.has_value(); }

private:
    FrontApplication& m_covered;
    std::optional<ApplicationRecord> m_cover;
    Subscription m_coveredSwitches;
};
