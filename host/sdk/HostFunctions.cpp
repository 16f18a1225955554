#include "host/sdk/HostFunctions.h"

namespace {

enum HostFunctionId {
#define VISTREL_HOST_FUNCTION_ID(stub, hostName, R, params, args) k_##stub,
    VISTREL_HOST_FUNCTIONS(VISTREL_HOST_FUNCTION_ID)
#undef VISTREL_HOST_FUNCTION_ID
        kHostFunctionCount
};

const char *const kHostNames[kHostFunctionCount] = {
#define VISTREL_HOST_FUNCTION_NAME(stub, hostName, R, params, args) hostName,
    VISTREL_HOST_FUNCTIONS(VISTREL_HOST_FUNCTION_NAME)
#undef VISTREL_HOST_FUNCTION_NAME
};

HostResolver gResolver = nullptr;
void *gFound[kHostFunctionCount];

// A name the host lacks is asked again on the next call: it costs nothing on a
// complete host and lets a late registration be found.
void *hostFunction(HostFunctionId id) {
    if (!gFound[id]) gFound[id] = resolveHostFunction(kHostNames[id]);
    return gFound[id];
}

}  // namespace

void setHostResolver(HostResolver resolver) {
    gResolver = resolver;
    for (void *&f : gFound) f = nullptr;
}

HostResolver hostResolver() {
    return gResolver;
}

void *resolveHostFunction(const char *hostName) {
    return gResolver ? gResolver(hostName) : nullptr;
}

#define VISTREL_DEFINE_HOST_FUNCTION(stub, hostName, R, params, args) \
    R stub params {                                                   \
        using Result = R;                                             \
        using Fn = Result(*) params;                                  \
        Fn f = reinterpret_cast<Fn>(hostFunction(k_##stub));          \
        return f ? f args : Result();                                 \
    }
VISTREL_HOST_FUNCTIONS(VISTREL_DEFINE_HOST_FUNCTION)
#undef VISTREL_DEFINE_HOST_FUNCTION
