#pragma once
#include <QImage>
#include <gtest/gtest.h>

/// Whether @p picture looks like the file golden/NAME.png of this folder: both are compared at a quarter of
/// their size, so that other fonts and other rounding of edges do not count, but anything does that is
/// missing, elsewhere or of another colour. Where it does not, the picture is left in the temporary folder.
///
/// With the environment variable WAYMARK_WRITE_GOLDEN_PICTURES set, writes the file instead, and fails.
testing::AssertionResult looksLikeGolden(const QImage& picture, const char* name);
