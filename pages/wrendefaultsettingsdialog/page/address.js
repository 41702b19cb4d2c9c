// Addresses in four fields.
Object.assign(wrendefaultsettingsdialog_obj, {
    initializeAddresses() {
        Array.from(document.querySelectorAll('.md-address')).forEach(place => {
            const head = place.getAttribute('data-head');
            [1, 2, 3, 4].forEach(number => {
                if (number > 1) {
                    place.appendChild(document.createTextNode('.'));
                }
                const octet = document.createElement('input');
                const attributes = { type: 'text', id: `${head}_ip${number}`, maxlength: 3,
                    class: `md-octet ${place.getAttribute('data-class') || ''}` };
                Object.keys(attributes).forEach(name => octet.setAttribute(name, attributes[name]));
                place.appendChild(octet);
                listenToField(octet, head, number);
            });
        });
    },

    // A last field of 0 is left to the user.
    setIp(head, text) {
        const parts = text.split('.');
        octetsOf(head).forEach((octet, index) => {
            octet.value = parts[index] === undefined || (index === 3 && parts[3] === '0') ? '' : parts[index];
        });
    },

    // Empty when the fields hold no address. `dummy`: that of a camera that is none is one too.
    concatIp(head, dummy) {
        const texts = octetsOf(head).map(octet => octet.value);
        const numbers = texts.map(Number);
        const isAddress = texts.every(text => zeb4func.inputIpCheck(text, dummy)) && numbers[3] >= 1 &&
            !(isPrivate(numbers) && numbers[3] > 254);
        return isAddress ? numbers.join('.') : '';
    }
});

function octetsOf(head) {
    return [1, 2, 3, 4].map(number => document.getElementById(`${head}_ip${number}`));
}

function isPrivate(numbers) {
    return numbers[0] === 192 && numbers[1] === 168;
}

function listenToField(octet, head, number) {
    takeDigits(octet);
    octet.addEventListener('paste', event => {
        event.preventDefault();
        const digits = event.clipboardData.getData('text').replace(/[^0-9]/g, '');
        document.execCommand('insertText', false, digits);
    });
    octet.addEventListener('input', () => keepDigits(octet));
    octet.addEventListener('blur', () => {
        if (settleField(octet, head, number)) {
            window.setTimeout(() => octet.focus(), 0);
        }
    });
    octet.addEventListener('keydown', event => {
        if (event.keyCode === KEY.ENTER) {
            settleField(octet, head, number);
        }
    });
}

// Answers whether something else than digits stood there, for what was stored by hand need not be a number.
function settleField(octet, head, number) {
    const before = octet.value;
    const isLast = number === 4;
    const wasText = keepDigits(octet);
    const isBelow192168 = isPrivate(octetsOf(head).map(other => Number(other.value)));
    limitOctet(octet, isLast ? 1 : 0, isLast && isBelow192168 ? 254 : 255);
    if (wasText || Number(before) !== Number(octet.value)) {
        noteCorrection();
    }
    return wasText;
}
