'use strict';

var wrentabledialog_const_obj = {
    noMove: 0,
    liveMove: 1,
    memoryMove: 2,

    // The display keys, in the order of their boxes.
    displaySettingsArray: [
        PREF_KEY_WREN_DISPLAY_CAMERA_SETTINGS,
        PREF_KEY_WREN_DISPLAY_CUSTOM_SETTINGS,
        PREF_KEY_WREN_DISPLAY_EXTERNAL_SYNC,
        PREF_KEY_WREN_DISPLAY_ALERT,
        PREF_KEY_WREN_DISPLAY_LOCK,
        PREF_KEY_WREN_DISPLAY_SYNC_STATUS,
        PREF_KEY_WREN_DISPLAY_FRAMERATE,
        PREF_KEY_WREN_DISPLAY_SHUTTER,
        PREF_KEY_WREN_DISPLAY_RESOLUTION,
        PREF_KEY_WREN_DISPLAY_TRIGGER_MODE,
        PREF_KEY_WREN_DISPLAY_REDUCE_MODE,
        PREF_KEY_WREN_DISPLAY_SYNC_TAB,
        PREF_KEY_WREN_DISPLAY_IRIG_TAB,
        PREF_KEY_WREN_DISPLAY_PLUGIN_TAB,
        PREF_KEY_WREN_DISPLAY_MEMORYPLUGIN_TAB,
        PREF_KEY_WREN_DISPLAY_RECORD_CHECK,
        PREF_KEY_WREN_DISPLAY_RECORDED_FRAMERATE,
        PREF_KEY_WREN_DISPLAY_RECORDED_STARTFRAME,
        PREF_KEY_WREN_DISPLAY_RECORDED_ENDFRAME,
        PREF_KEY_WREN_DISPLAY_TRIGGER_OFFSET
    ],

    CUSTOM_MAX: 64
};

// Fields that all live tabs, and both memory tabs, begin with.
const LIVE_FIELDS = ['lock', 'connectIcon', 'cameraName', 'alert', 'cameraStatus', 'sync'];
const MEMORY_FIELDS = ['recordCheck', 'connectIcon', 'cameraName', 'alert'];

// A tab by its number. `fields` are the columns it may have. On those of `still` a click or a drag leaves the
// selection as it is.
const TABS = [
    {
        name: 'cameraInfo',
        fields: LIVE_FIELDS.concat('connectionStatus', 'ipAddress', 'comment'),
        still: ['lock', 'comment', 'connectionStatus']
    },
    {
        name: 'livecontrol',
        fields: LIVE_FIELDS.concat('frameRate', 'shutterSpeed', 'resolution', 'trigger', 'reduce', 'lowlight'),
        still: ['lock', 'frameRate', 'shutterSpeed', 'resolution', 'trigger', 'reduce', 'lowlight']
    },
    {
        name: 'sync',
        fields: LIVE_FIELDS.concat('externalSync', 'triggerIn', 'triggerSwIn'),
        still: ['lock']
    },
    {
        name: 'irig',
        fields: LIVE_FIELDS.concat('irigTimeStamp', 'irigSync'),
        still: ['lock']
    },
    {
        name: 'plugin',
        fields: LIVE_FIELDS.concat('plugin'),
        still: ['lock', 'plugin']
    },
    {
        name: 'memoryInfo',
        fields: MEMORY_FIELDS.concat('frameRate', 'originalStartFrameNo', 'originalEndFrameNo', 'selectStartFrameNo',
            'selectEndFrameNo', 'totalFrame', 'triggerOffset'),
        still: ['recordCheck', 'selectStartFrameNo', 'selectEndFrameNo', 'triggerOffset']
    },
    {
        name: 'memoryPlugin',
        fields: MEMORY_FIELDS.concat('plugin'),
        still: ['recordCheck', 'plugin']
    }
].map((tab, number) => Object.assign(tab, {
    number,
    memory: tab.name.startsWith('memory'),
    panel: tab.name + 'Tab',
    gridName: `wren-${tab.name}-list`,
    orderKey: `wren/column_order/${tab.name}`
}));

// Their numbers.
const LIVE = TABS.filter(tab => !tab.memory).map(tab => tab.number);
const MEMORY = TABS.filter(tab => tab.memory).map(tab => tab.number);

// As cameraInfoTabNo and cameraInfoTabName.
TABS.forEach(tab => {
    wrentabledialog_const_obj[tab.name + 'TabNo'] = tab.number;
    wrentabledialog_const_obj[tab.name + 'TabName'] = tab.name;
});

// Position of the columns of the active tab that need one; -1 for a column it does not have.
var wrentabledialog_column_obj = {
    cameraNameColumnNo: -1,
    lockColumnNo: -1,
    commentColumnNo: -1,
    pluginColumnNo: -1,
    recordCheckColumnNo: -1,
    startFrameColumnNo: -1,
    endFrameColumnNo: -1,
    triggerOffsetColumnNo: -1,
    connectionStatusColumnNo: -1,
    frameRateColumnNo: -1,
    shutterSpeedColumnNo: -1,
    resolutionColumnNo: -1,
    triggerColumnNo: -1,
    reduceColumnNo: -1,
    lowlightColumnNo: -1
};
