#pragma once

#include "penlode/IGraphicsEngine.h"

namespace millichart {

/// A container in the units outside. The surface comes back as it was found, even when memory runs out.
class Container {
public:
    explicit Container(penlode::IGraphicsEngine& engine) : m_engine(engine) {
        const float scale = engine.GetPageScale();
        const penlode::Unit unit = engine.GetPageUnit();
        m_handle = engine.BeginContainer();
        engine.SetPageScale(scale);
        engine.SetPageUnit(unit);
    }

    ~Container() { m_engine.EndContainer(m_handle); }

    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

private:
    penlode::IGraphicsEngine& m_engine;
    std::uint32_t m_handle;
};

} // namespace millichart
