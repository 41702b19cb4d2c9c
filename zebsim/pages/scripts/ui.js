'use strict';

// Default options of a slider that stands at `value`.
function SliderProperty(value) {
    return { orientation: 'horizontal', range: 'min', animate: false, value: value };
}
