#pragma once
// Selection sets: named, ordered sets of entities that live until acedSSFree. As in the host, at
// most 128 sets can be open at once; a command that forgets to free its sets runs out of them.

#include "host/base/AcadTypes.h"
#include "host/base/resbuf.h"

constexpr int kAcEdMaxSelectionSets = 128;

// With no set, makes a new one: empty when ename is nil too, else holding ename. With a set,
// adds ename to it (an entity already in it is not added twice) and result names the same set.
// RTERROR for an unknown set, an entity name that names no object, or too many open sets.
int acedSSAdd(const ads_name ename, const ads_name ss, ads_name result);
// Removes the entity from the set; RTERROR when it is not in it.
int acedSSDel(const ads_name ename, const ads_name ss);
int acedSSFree(const ads_name ss);
int acedSSLength(const ads_name ss, Adesk::Int32* length);
// The name of the entity at index (from 0, in the order added); RTERROR out of range.
int acedSSName(const ads_name ss, Adesk::Int32 index, ads_name entity);
// RTNORM when the entity is in the set, RTERROR when not.
int acedSSMemb(const ads_name ename, const ads_name ss);

// How many selection sets are open: lets a test see that a command freed the sets it made.
int acedSSOpenCount();
