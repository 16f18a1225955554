#pragma once

/* Opaque handles of the flat interface: one type per engine class.  Views go in
   as a pointer and a count; views come out through two out-parameters, pointer
   first, and stay valid as the class that made them says. */

#include <stdbool.h>
#include <wchar.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct CDrawArea CDrawArea;
typedef struct CTTFText CTTFText;
typedef struct CArrayMath CArrayMath;

/* Blocks that a function hands out with malloc go back through this. */
void CVistrel_free(void *data);

#ifdef __cplusplus
}
#endif
