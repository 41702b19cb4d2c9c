// How the shared scripts know the object by which the page talks to the plug-in.
var bridge = wrentabledialog;

var wrentabledialog_const_obj = {
    noMove: 0,
    liveMove: 1,
    memoryMove: 2,

    CUSTOM_MAX: 64
};

const PAINT_MS = 20; // by then the page has drawn what was changed

// Fields that all live tabs, and both memory tabs, begin with.
const LIVE_FIELDS = ['lock', 'connectIcon', 'cameraName', 'alert', 'cameraStatus', 'sync'];
const MEMORY_FIELDS = ['recordCheck', 'connectIcon', 'cameraName', 'alert'];

// A tab by its number. `fields` are the columns it may have.
const TABS = [
    {
        name: 'cameraInfo',
        fields: LIVE_FIELDS.concat('connectionStatus', 'ipAddress', 'comment')
    },
    {
        name: 'livecontrol',
        fields: LIVE_FIELDS.concat('frameRate', 'shutterSpeed', 'resolution', 'trigger', 'reduce', 'lowlight')
    },
    {
        name: 'sync',
        fields: LIVE_FIELDS.concat('externalSync', 'triggerIn', 'triggerSwIn')
    },
    {
        name: 'irig',
        fields: LIVE_FIELDS.concat('irigTimeStamp', 'irigSync')
    },
    {
        name: 'plugin',
        fields: LIVE_FIELDS.concat('plugin')
    },
    {
        name: 'memoryInfo',
        fields: MEMORY_FIELDS.concat('frameRate', 'originalStartFrameNo', 'originalEndFrameNo', 'selectStartFrameNo',
            'selectEndFrameNo', 'totalFrame', 'triggerOffset')
    },
    {
        name: 'memoryPlugin',
        fields: MEMORY_FIELDS.concat('plugin')
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
