#include "penlode/recording/RecordingEngine.h"

#include "penlode/Units.h"

namespace penlode {

CRecordingEngine::CRecordingEngine() : CTrackingEngine(kMillimetresPerInch, kMillimetresPerInch, &m_calls) {}

std::string CRecordingEngine::Text(int decimals) const {
    std::string text;
    for (const RecordedCall& call : m_calls) {
        text += ToText(call, decimals) + "\n";
    }
    return text;
}

} // namespace penlode
