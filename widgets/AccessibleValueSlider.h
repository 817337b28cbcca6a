// What assistive technology is told about the panel's sliders.
#pragma once

class ValueSlider;

/// Makes every ValueSlider a slider with a value in its unit. Does nothing the second time.
void installAccessibleValueSlider();
void notifyAccessibleValueSlider(ValueSlider* slider);
