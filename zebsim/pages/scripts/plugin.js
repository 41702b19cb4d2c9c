'use strict';

// The picture of each tool in a row of tool icons: from the tool's name to the icon's.
var pluginIcons = {
    lut: 'tool-adj-lut',
    colorcorrection: 'tool-adj-color',
    filter: 'tool-adj-filter',
    hdr: 'tool-adj-hdr',
    binning: 'tool-adj-binning',
    scale: 'tool-dim-scale',
    manualtracking: 'tool-dim-manualtracking',
    calibration: 'tool-dim-calibration',
    pseudo: 'tool-msr-pseudo',
    histogram: 'tool-msr-histogram',
    lineprofile: 'tool-msr-lineprofile',
    luminance: 'tool-msr-luminance',
    brightness: 'tool-msr-bright',
    mosaic: 'tool-edt-mosaic',
    addtext: 'tool-edt-addtext',
    addpicture: 'tool-edt-addpict',
    selectarea: 'tool-edt-selectarea',
    lenscalib: 'tool-eqp-lens',
    led: 'tool-eqp-led',
    timelapse: 'tool-eqp-timelapse',
    serial: 'tool-eqp-serial',
    imagetrigger: 'tool-eqp-swimgtgr',
    mobile: 'tool-add-mobile',
    sync: 'tool-ass-sync',
    imageoverlay: 'tool-ass-overimg',
    pictureinpicture: 'tool-ass-pinto',
    whitewarning: 'tool-ass-whitewrn',
    stabilize: 'tool-spl-stabilize',
    distortion: 'tool-spl-distort',
    panting: 'tool-spl-spanting',
    deleteback: 'tool-spl-delback',
    cycleview: 'tool-spl-cycleview',
    motionsearch: 'tool-spl-motionsch',
    pivcontrol: 'tool-add-pivcontrol',
    pivanalize: 'tool-add-pivanalize',
    daq: 'tool-add-daq'
};

var plugin_obj = {
    // The tool's name of an icon; the icon's own name where there is none.
    getPluginName: function (icon) {
        const name = Object.keys(pluginIcons).find(function (key) { return pluginIcons[key] === icon; });
        return name === undefined ? icon : name;
    }
};
