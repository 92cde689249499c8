// Nothing here: the tests run on another system.
#pragma once
