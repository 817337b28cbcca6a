// What assistive technology is told about the picture view.
#pragma once

/// Makes every MyImageView a canvas that tells its zoom. Does nothing the second time.
void installAccessibleImageView();
