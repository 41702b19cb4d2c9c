'use strict';

/* global NodeFilter, getComputedStyle, probe */

// The texts of the page that can be used and that do not stand out from their ground, as "3.2 #id text". Colours are
// those that the engine computed; a picture as ground is taken for its colour.
probe.faintTexts = () => {
    const parse = text => {
        const numbers = (text.match(/[\d.]+/g) || [0, 0, 0, 0]).map(Number);
        return { rgb: numbers.slice(0, 3), alpha: numbers.length > 3 ? numbers[3] : 1 };
    };
    const over = (top, below) => top.rgb.map((value, index) => value * top.alpha + below[index] * (1 - top.alpha));
    // What may lie under a text in it: with a gradient at the bottom any of its stops, under the layers above it.
    const grounds = element => {
        const below = element.parentElement ? grounds(element.parentElement) : [[255, 255, 255]];
        const { backgroundColor, backgroundImage } = getComputedStyle(element);
        const layers = backgroundImage.split(/(?=-webkit-linear-gradient)/)
            .map(layer => layer.match(/rgba?\([^)]*\)/g)).filter(Boolean).concat([[backgroundColor]]);
        return layers.reverse().reduce((under, stops) => [].concat(...stops.map(stop =>
            under.map(rgb => over(parse(stop), rgb)))), below);
    };
    const luminance = rgb => {
        const [red, green, blue] = rgb.map(value => value / 255)
            .map(value => value <= 0.03928 ? value / 12.92 : Math.pow((value + 0.055) / 1.055, 2.4));
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
    };
    const greyed = '[disabled], [disabled] + label, .disabled, .ui-state-disabled, tr[unlisted], .w2ui-lock';
    const faint = new Set();
    const look = (element, text) => {
        const style = getComputedStyle(element);
        const box = element.getBoundingClientRect();
        if (!text.trim() || box.width < 2 || style.visibility === 'hidden' || style.opacity === '0' ||
            parseFloat(style.fontSize) < 1 || parseFloat(style.textIndent) < 0 || element.closest(greyed)) {
            return;
        }
        let opacity = 1;
        for (let at = element; at; at = at.parentElement) {
            opacity *= Number(getComputedStyle(at).opacity);
        }
        const colour = parse(style.color);
        colour.alpha *= opacity;
        const contrast = Math.min(...grounds(element).map(below => {
            const [a, b] = [over(colour, below), below].map(luminance);
            return (Math.max(a, b) + 0.05) / (Math.min(a, b) + 0.05);
        }));
        const inFront = element.closest('li.ui-tabs-active') !== null;
        if (contrast < (inFront ? 3 : 4.5)) {
            const owner = element.closest('[id]');
            faint.add([contrast.toFixed(2), owner ? owner.id : '', element.className, text.trim()].join(' '));
        }
    };
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    probe.textsSeen = 0;
    while (walker.nextNode()) {
        probe.textsSeen++;
        look(walker.currentNode.parentElement, walker.currentNode.data);
    }
    Array.from(document.querySelectorAll('input[type="text"], input[type="button"], textarea'))
        .forEach(input => look(input, input.value));
    return Array.from(faint);
};
