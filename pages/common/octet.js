// Fields for the numbers of an address.

// Takes digits only. Text that came another way shows for a moment.
function takeDigits(octet) {
    octet.addEventListener('keypress', event => {
        const typed = event.charCode >= 32 && !event.ctrlKey && !event.metaKey;
        if (typed && !/[0-9]/.test(String.fromCharCode(event.charCode))) {
            event.preventDefault();
        }
    });
    octet.addEventListener('keyup', () => keepDigits(octet));
}

// Answers whether anything else stood there.
function keepDigits(octet) {
    return correctOctet(octet, octet.value.replace(/[^0-9]/g, ''));
}

// The number goes to the nearer limit; an empty field stays empty.
function limitOctet(octet, min, max) {
    if (octet.value !== '') {
        correctOctet(octet, String(Math.min(max, Math.max(min, Number(octet.value) || 0))));
    }
}

// Who listens hears of it as of what the user types. Answers whether it differs from what stood there.
function correctOctet(octet, text) {
    const differs = octet.value !== text;
    if (differs) {
        octet.value = text;
        octet.dispatchEvent(new Event('input'));
    }
    return differs;
}
