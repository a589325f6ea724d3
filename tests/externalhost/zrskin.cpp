#include "zrskin/IZrSkin.h"

IZrSkin::IZrSkin() = default;
IZrSkin::~IZrSkin() = default;
