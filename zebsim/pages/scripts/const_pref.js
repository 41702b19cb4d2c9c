'use strict';

// Keys of the preference store, as pages name them.

var PREF_KEY_SAVE_STATUS_ONLIVEMEMORYMODE = 'save/livememorymodeSaveStatus';

// What the main save button does.
var PREF_VAL_SAVE_STATUS_DEFAULT = 0;
var PREF_VAL_SAVE_STATUS_LAYOUT = 1;

var PREF_KEY_WREN_DISPLAY_CAMERA_SETTINGS = 'wren/display/cameraSettings';
var PREF_KEY_WREN_DISPLAY_CUSTOM_SETTINGS = 'wren/display/customSettings';
var PREF_KEY_WREN_DISPLAY_EXTERNAL_SYNC = 'wren/display/externalSync';
var PREF_KEY_WREN_DISPLAY_ALERT = 'wren/display/alert';
var PREF_KEY_WREN_DISPLAY_LOCK = 'wren/display/lock';
var PREF_KEY_WREN_DISPLAY_SYNC_STATUS = 'wren/display/syncStatus';
var PREF_KEY_WREN_DISPLAY_FRAMERATE = 'wren/display/frameRate';
var PREF_KEY_WREN_DISPLAY_SHUTTER = 'wren/display/shutterSpeed';
var PREF_KEY_WREN_DISPLAY_RESOLUTION = 'wren/display/resolution';
var PREF_KEY_WREN_DISPLAY_TRIGGER_MODE = 'wren/display/triggerMode';
var PREF_KEY_WREN_DISPLAY_REDUCE_MODE = 'wren/display/reduceMode';
var PREF_KEY_WREN_DISPLAY_SYNC_TAB = 'wren/display/syncTab';
var PREF_KEY_WREN_DISPLAY_IRIG_TAB = 'wren/display/irigTab';
var PREF_KEY_WREN_DISPLAY_PLUGIN_TAB = 'wren/display/pluginTab';
var PREF_KEY_WREN_DISPLAY_MEMORYPLUGIN_TAB = 'wren/display/memoryPluginTab';
var PREF_KEY_WREN_DISPLAY_RECORD_CHECK = 'wren/display/recordCheck';
var PREF_KEY_WREN_DISPLAY_RECORDED_FRAMERATE = 'wren/display/recordedFrameRate';
var PREF_KEY_WREN_DISPLAY_RECORDED_STARTFRAME = 'wren/display/recordedStartFrame';
var PREF_KEY_WREN_DISPLAY_RECORDED_ENDFRAME = 'wren/display/recordedEndFrame';
var PREF_KEY_WREN_DISPLAY_TRIGGER_OFFSET = 'wren/display/triggerOffset';

var PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECREADY = 'wren/settings/recreadyTableColor';
var PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECORDING = 'wren/settings/recordingTableColor';
var PREF_KEY_WREN_SETTINGS_TABLE_COLOR_MEMORY = 'wren/settings/memoryTableColor';
