// How the shared scripts know the object by which the page talks to the plug-in.
var bridge = wrendefaultsettingsdialog;

// What stands in the first three fields of the address of a camera that is none.
const DUMMY_NUM = '999';

// The page's state; its functions are added by the topics that follow. The lists stand in `gridLists` by their names,
// and a module's own few variables at its head.
var wrendefaultsettingsdialog_obj = {
    cameraList: [], // the groups with their cameras
    last_select_group: '', // name of the group of the last selection
    groupSelecting: false, // a rubber band is being drawn over the groups
    groupTemplate: null, // draws the groups
    groupCursor: null, // where the keyboard stands in them
    sequence: 0, // next value of a `dockey` or `recid`
    isLoaded: false, // the controls show what is stored
    settings: new Map(), // key -> Setting, in the order in which they are stored
    slots: {}, // name of a signal of the bridge -> what it is connected to
    // The boxes of the trigger's parameters.
    before: null,
    after: null,
    randomFrame: null,
    randomTimes: null
};
