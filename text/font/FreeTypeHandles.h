#pragma once

// FreeType's handles, declared as FreeType declares them, so that headers can
// hold them while FreeType's own headers stay in the sources that call it.
struct FT_FaceRec_;
struct FT_LibraryRec_;
typedef struct FT_FaceRec_ *FT_Face;
typedef struct FT_LibraryRec_ *FT_Library;
