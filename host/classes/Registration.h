#pragma once

#include "host/glue/ClassRegistry.h"

// What the host is told, made from the class list and the declaration tables.

// The interface version to announce to a host of that version.
int controlVersionFor(double hostVersion);
// Target flags as a host of that version understands them.
uint32_t flagsForHost(uint32_t flags, double hostVersion);
// How many entries of a table a host of that version gets: tables end with the
// overloads that older hosts cannot read.
int registeredCount(TableSpan<MethodEntry> methods, double hostVersion);
// Fills the definitions of all classes for a host of that version.
void buildDefinitions(double hostVersion);
// The last touches before a definition goes to the host: flags of the class and
// of its members, the data size rounded up to 16, the version field.
void prepareDefinition(REALclassDefinition &def, double hostVersion, int controlVersion);
