#pragma once

#include <QLabel>

#include "calculators/loansearch.h"
#include "calculators/realratereport.h"
#include "datastore/paths.h"
#include "reports/resultscreen.h"

namespace calculators {

/// What both screens of the real rate of return have in common. `Inputs` is the group of the record that one works on.
template <class Inputs>
class RealRateScreen : public reports::ResultScreen {
protected:
    RealRateScreen(screenkit::Workplace& workplace, const QString& name, Inputs& inputs)
        : ResultScreen(workplace, name, "Real Rate of Return", workplace.record.changed.RRRChanged), m_inputs(inputs) {}

    static screenkit::NumberKind months() {
        return screenkit::whole.upTo(longestPeriod, "The maximum period  allowed is 600 months", "Incorrect Period!");
    }
    screenkit::NumberField* rate() { return answer("numRRR", m_result.found.rate, screenkit::percent); }
    /// A sentence in place of a rate.
    QLabel* unreached() {
        m_unreached = screenkit::note(unreachedSentence);
        m_unreached->setObjectName("lblUnreached");
        return m_unreached;
    }
    /// For an escalation that a calculation may set to 0.
    void writesBack(screenkit::NumberField* escalation) { m_escalations.push_back(escalation); }

    void filled() override {
        // Looking must not change the saved escalations. Where the calculation sets them to 0 they have no effect.
        Inputs copy = m_inputs;
        show(RRRCalc(copy));
    }
    void calculate() override {
        const RealRate result = RRRCalc(m_inputs);
        for (auto* field : m_escalations) {
            const double stood = field->value();
            field->fill();
            if (field->value() != stood) m_work.record.changed.RRRChanged = 1;
        }
        show(result);
    }
    void sayAnswers() override {
        m_unreached->isHidden() ? ResultScreen::sayAnswers() : announce(QString(unreachedSentence));
    }
    std::optional<datastore::Printout> feed() override {
        if (!m_result.isFinite()) return {};
        return feedRealRate(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_result);
    }

    Inputs& m_inputs;
    RealRate m_result;

private:
    void show(const RealRate& result) {
        m_result = result;
        m_unreached->setVisible(result.answer == RealRate::Answer::unreached);
        showAnswers(result.isFinite());
    }

    QLabel* m_unreached = nullptr;
    std::vector<screenkit::NumberField*> m_escalations;
};

} // namespace calculators
