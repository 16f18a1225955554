#pragma once

namespace abc {

// The root of the wrappers that containers delete.
class VSObject {
public:
    virtual ~VSObject() {}
};

}  // namespace abc
