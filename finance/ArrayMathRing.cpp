#include "finance/ArrayMathRing.h"

ArrayMathRing::ArrayMathRing(int size) : items(new double[size]()), size(size), next(0), count(0) {}

ArrayMathRing::~ArrayMathRing() {
    delete[] items;
}
