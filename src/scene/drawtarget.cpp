#include "scene/drawtarget.h"

namespace Zel3D {

namespace {

const DrawTarget*& inForce()
{
    thread_local const DrawTarget* target = nullptr;
    return target;
}

} // namespace

DrawTargetScope::DrawTargetScope(const DrawTarget& drawTarget) : target(drawTarget), before(inForce())
{
    inForce() = &target;
}

DrawTargetScope::~DrawTargetScope()
{
    inForce() = before;
}

const DrawTarget& DrawTargetScope::current()
{
    static const DrawTarget window;
    return inForce() ? *inForce() : window;
}

} // namespace Zel3D
