#pragma once
// An older kind of movie rule. A performance made here never has one; the
// class exists so that a subscene can keep the collection the files loop over.
class CMovieEvent {
public:
};
