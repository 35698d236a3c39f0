// What nearly every screen includes; parsed once.
#pragma once
#include <QtWidgets>
#include <functional>
#include <optional>
#include <string>
#include <vector>
