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
    const digits = octet.value.replace(/[^0-9]/g, '');
    const differs = octet.value !== digits;
    if (differs) {
        octet.value = digits;
    }
    return differs;
}

// The number goes to the nearer limit; an empty field stays empty.
function limitOctet(octet, min, max) {
    if (octet.value !== '') {
        octet.value = String(Math.min(max, Math.max(min, Number(octet.value) || 0)));
    }
}
