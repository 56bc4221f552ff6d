#include "runner/scenario.hpp"
