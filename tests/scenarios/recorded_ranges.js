// What cameras have recorded, as the memory tabs tell it; the menus beside the buttons; and the way back.

const FROM = key => `#wren_spinner_select_start_frameno${key}`;

function activeTab() {
    return zeb.page("$('#tabs').tabs('option', 'active')");
}

function row(key) {
    return zeb.page(`$('#wren_memoryInfo_recordCheck_${key}').closest('tr').find('.wren_text').get()` +
        '.map(text => text.textContent)');
}

zeb.rig(6);
zeb.keys().forEach(key => zeb.setCamera(key, {connected: true}));
check(zeb.open(), 'the table opens');
zeb.click('a[href="#pluginTab"]');
check(zeb.until("$('.wren_effect_icons .item').length > 0"), 'the tools of each camera stand on their tab');
zeb.setCamera(2, {effectivePlugins: ['filter']});
check(zeb.until("$('#tool-adj-filter_2').prop('checked')"), 'one that works is marked at the next tick');

zeb.mode('memory');
check(zeb.until("$('#tabs').tabs('option', 'active') === 5"), 'memory mode brings the memory information to the front');
zeb.setCamera(1, {recorded: true, recordedRange: [100, 1099], recordedTrigger: 600, recordedRate: 2000,
    selectedRange: [200, 900]});
zeb.page('wrentabledialog_obj.update(); return 0');
check(String(row(1)) === '2000 fps,-500,499,701', 'rate, first and last frame, and how many would be saved: ' + row(1));
check(zeb.page(`$('${FROM(1)}').val()`) === '-400', 'the range to keep begins 400 frames before the trigger');
check(zeb.page(`$('${FROM(2)}').length`) === 0, 'a camera that has recorded nothing shows nothing');
zeb.setCamera(1, {recordCheck: true});
check(zeb.until("$('#wren_memoryInfo_recordCheck_1').prop('checked')"), 'the confirmed recording is ticked');

zeb.click('#btn-save .miscfuncs button');
check(zeb.page("$('#btn-save ul').is(':visible')"), 'the menu of the save button opens');
zeb.click('.dummy');
check(!zeb.page("$('#btn-save ul').is(':visible')"), 'a click elsewhere closes it');

zeb.mode('live');
check(zeb.until("$('#tabs').tabs('option', 'active') === 4"), 'back in live mode the tools are in front again');
zeb.click('#recording_partition_span_button');
check(zeb.until('wrentabledialog.isShownSelectBox()'), 'the partitions open beside their button');
zeb.click('.dummy');
check(zeb.until('!wrentabledialog.isShownSelectBox()'), 'and close by a click elsewhere');
check(activeTab() === 4, 'the click met no tab');
