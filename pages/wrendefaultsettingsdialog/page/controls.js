// The plain controls as a `Setting` wants them.
function checkBox(id) {
    const box = document.getElementById(id);
    return {
        show: value => { box.checked = value; },
        value: () => box.checked,
        listen: touch => box.addEventListener('change', touch)
    };
}

function choice(id, toValue) {
    const select = document.getElementById(id);
    return {
        show: value => chooseOption(select, String(value)),
        value: () => toValue(select.value),
        listen: touch => select.addEventListener('change', touch)
    };
}

// Of the radio buttons of that name none is checked when `value` is not among them.
function radio(name) {
    const buttons = Array.from(document.getElementsByName(name));
    return {
        show: value => buttons.forEach(button => { button.checked = button.value === value; }),
        value: () => buttons.find(button => button.checked).value,
        listen: touch => buttons.forEach(button => button.addEventListener('change', touch))
    };
}

function numberIn(box) {
    return {
        show: value => box.show(value),
        value: () => box.number,
        listen: touch => box.onChange(touch)
    };
}

// The four fields of an address. While they hold none, the value is empty.
function addressIn(head) {
    return {
        show: value => wrendefaultsettingsdialog_obj.setIp(head, value),
        value: () => wrendefaultsettingsdialog_obj.concatIp(head, false),
        listen: touch => octetsOf(head).forEach(octet => octet.addEventListener('input', touch))
    };
}
