#pragma once

#include <string>

// Small helpers shared by every caller that fills templates.

// -2 if attr does not begin with prefix, else the number behind the prefix, or -1 if
// none stands there: "value" gives -1, "value3" 3, "valuex" -1.
int getAttrIndex(const char *attr, const char *prefix);

// True for chart times from 1800-01-01 to 2200-01-01, both included.
bool lookLikeDate(double value);

// Replaces every occurrence, scanning on behind each replacement.
std::string replaceString(const char *text, const char *from, const char *to);

// query with each "{default}" replaced by defaultQuery; defaultQuery if query is empty.
std::string combineQuery(const char *query, const char *defaultQuery);

// Appends a query to a url, or puts it in place of each "{queryParam}".
std::string urlJoin(const char *url, const char *query);
