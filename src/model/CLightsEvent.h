#pragma once
// An older kind of lights rule. A performance made here never has one.
class CLightsEvent {
public:
};
