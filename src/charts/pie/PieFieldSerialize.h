#pragma once

#include "foundation/SerializeFrame.h"

/// The keys that a pie's record and a half pie's have in common. `Basic` is either's.
namespace millichart {

template <class Basic> void SerializeSize(KeyedRecord& record, Basic& prop) {
    record.Integer("FixedSize", prop.FixedSize, 0);
    record.Float("FixedWidth", prop.FixedWidth, 20.0F);
    record.Float("BaseValue", prop.BaseValue, 100.0F);
    record.Float("BasePieWidth", prop.BasePieWidth, 10.0F);
}

template <class Basic> void SerializeSlices(KeyedRecord& record, Basic& prop) {
    record.Integer("DrawSepLine", prop.DrawSepLine, 1);
    record.Pen("PenSepLine", prop.PenSepLine);
    record.JoinedTexts("ComponentName", prop.ComponentName);
    record.ColorList("ComponentColor", prop.ComponentColor);
}

} // namespace millichart
