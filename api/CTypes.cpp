#include "api/CTypes.h"

#include <cstdlib>

void CVistrel_free(void *data) {
    free(data);
}
